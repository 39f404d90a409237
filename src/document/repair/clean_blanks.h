#pragma once

#include <string>

namespace quillmere {

/// Behind the transliteration: cuts the blanks ahead of each tag, with a single line end among
/// them. Between two tags that have nothing else between them a line end goes without blanks as
/// well.
void cutBlanksAheadOfTags(std::string& text);

} // namespace quillmere
