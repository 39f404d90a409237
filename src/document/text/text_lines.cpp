// Both characters that end lines are looked for with the library's byte search, each part of the
// text once. Held by deck_store_test.cpp.

#include "document/text/text_lines.h"

#include "document/text/text_search.h"

#include <algorithm>

namespace quillmere {

LineReader::LineReader(std::string_view text)
    : text_(text)
    , nextCr_(text.find('\r'))
    , nextLf_(text.find('\n'))
{
}

std::optional<std::string_view> LineReader::next()
{
    if (position_ >= text_.size()) return std::nullopt;
    if (nextCr_ < position_) nextCr_ = text_.find('\r', position_);
    if (nextLf_ < position_) nextLf_ = text_.find('\n', position_);
    const auto end = std::min({nextCr_, nextLf_, text_.size()});
    const auto line = text_.substr(position_, end - position_);
    position_ = end + (nextCr_ == end && nextLf_ == end + 1 ? 2 : 1);
    return line;
}

std::string joinLines(std::string_view text)
{
    std::string joined;
    joined.reserve(text.size());
    LineReader lines(text);
    while (const auto line = lines.next())
        joined.append(*line);
    return joined;
}

std::string withCrLf(std::string_view text)
{
    std::string ended;
    ended.reserve(text.size() + text.size() / 8);
    LineReader lines(text);
    while (const auto line = lines.next())
        ended.append(*line).append("\r\n");
    return ended;
}

} // namespace quillmere
