#pragma once

#include "document/session.h"

#include <string>
#include <string_view>

namespace quillmere {

/// Takes format tags off the selection lists of an area, in place, after the person assented where
/// the setting `ShowSelectTagCorrectMessage` wants a question.
void RepairFormatAroundSelect(std::string& text, DocumentSession& session);

/// Whether the pair of tags encloses a selection list or stands in one. With `apply` such tags are
/// deleted from `text`.
bool FormatAroundSelect(
    std::string& text, std::string_view openTag, std::string_view closeTag, bool apply);

} // namespace quillmere
