#pragma once

#include "document/session.h"

#include <string>
#include <string_view>

namespace quillmere {

/// Takes the formats u, b, i, small and big off the selection lists of an area, in place. Where the
/// setting `ShowSelectTagCorrectMessage` is "yes" the person is asked once, and a text with nothing
/// to take off is never asked about. Throws Overflow for a text that is longer than positions can
/// tell.
void RepairFormatAroundSelect(std::string& text, DocumentSession& session);

/// Whether the pair of tags, given whole and in lower case, encloses a selection list or one of
/// them stands in one. With `apply` such tags are deleted from `text`: "<b>x<select></b></select>"
/// becomes "x<select></select>".
bool FormatAroundSelect(
    std::string& text, std::string_view openTag, std::string_view closeTag, bool apply);

} // namespace quillmere
