// The scan that both conversions share. A '>' that stands ahead of the next '<' is stray: the scan
// goes on behind it. Held by tag_scanner_test.cpp, which scans with plain searches.

#include "document/tag_scanner.h"

#include "document/text_search.h"

#include <algorithm>

namespace quillmere {

TagScanner::TagScanner(std::string_view text)
    : text_(text)
{
}

std::optional<Tag> TagScanner::next()
{
    const auto begin = text_.find('<', position_);
    if (begin == npos) return std::nullopt;
    // Behind "<" any '>' ends the tag, and all stray '>' ahead of it are passed over.
    if (nextEnd_ != npos && nextEnd_ <= begin) nextEnd_ = text_.find('>', begin + 1);
    if (nextEnd_ == npos) return std::nullopt;
    position_ = nextEnd_ + 1;
    return Tag{begin, nextEnd_ + 1};
}

void TagScanner::resumeAt(std::size_t offset)
{
    position_ = offset;
}

} // namespace quillmere
