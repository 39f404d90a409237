// The begins of all lines are found once; a place is then a search in them. Held by
// markup_document_test.cpp.

#include "document/text/text_place.h"

#include <algorithm>

namespace quillmere {

TextPlaces::TextPlaces(std::string_view text)
    : lineBegins_{0}
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r' && text.substr(at + 1, 1) == "\n") continue; // the LF ends the line
        if (text[at] == '\r' || text[at] == '\n') lineBegins_.push_back(at + 1);
    }
}

TextPlace TextPlaces::at(std::size_t offset) const
{
    const auto behind = std::upper_bound(lineBegins_.begin(), lineBegins_.end(), offset);
    const auto line = static_cast<std::size_t>(behind - lineBegins_.begin());
    return {line, offset - lineBegins_[line - 1] + 1};
}

} // namespace quillmere
