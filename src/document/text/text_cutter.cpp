// The kept part grows at the front of the text, the unread part lies behind a gap as wide as what
// was cut. Held by corrections_test.cpp.

#include "document/text/text_cutter.h"

#include <algorithm>

namespace quillmere {

TextCutter::TextCutter(std::string& text)
    : text_(text)
{
}

TextCutter::~TextCutter()
{
    text_.erase(kept_, unread_ - kept_);
}

void TextCutter::keepTo(std::size_t offset)
{
    const std::size_t length = offset - unread_;
    if (kept_ != unread_) std::copy_n(text_.data() + unread_, length, text_.data() + kept_);
    kept_ += length;
    unread_ = offset;
}

void TextCutter::takeBack(std::size_t count, std::size_t floor)
{
    count = std::min({count, kept_ - floor, unread_ - kept_});
    std::copy_n(text_.data() + kept_ - count, count, text_.data() + unread_ - count);
    kept_ -= count;
    unread_ -= count;
}

} // namespace quillmere
