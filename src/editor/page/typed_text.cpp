// A plain blank is written only where a browser shows it: behind a character that is none, and
// ahead of one. Held by type_edits_test.cpp.

#include "editor/page/typed_text.h"

#include "document/text/windows1252.h"
#include "editor/page/character_entities.h"

#include <optional>

namespace quillmere {

namespace {

constexpr std::string_view kLineBreak = "<br/>";
constexpr std::string_view kHardBlank = "&nbsp;";
constexpr char32_t kHardBlankPoint = 0xA0;
constexpr char32_t kLineBreakShown = 0x2028;
constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kObject = 0xFFFC; // stands for pictures and the like in copied text

/// The code point at `position`, which moves behind it; U+FFFD for half of a surrogate pair.
char32_t nextPoint(std::u16string_view text, std::size_t& position)
{
    const char32_t unit = text[position++];
    if (unit < 0xD800 || unit > 0xDFFF) return unit;
    const bool isPair = unit < 0xDC00 && position < text.size() && text[position] >= 0xDC00
        && text[position] <= 0xDFFF;
    if (!isPair) return kReplacement;
    return 0x10000 + ((unit - 0xD800) << 10U) + (text[position++] - char32_t{0xDC00});
}

bool isLineEnd(char32_t point)
{
    return point == '\n' || point == '\r' || point == kLineBreakShown || point == 0x2029;
}

bool isLeftOut(char32_t point)
{
    return point < 0x20 || (point >= 0x7F && point < kHardBlankPoint) || point == kObject;
}

std::optional<char> byteOf(char32_t point)
{
    if (point < 0x80) return static_cast<char>(point);
    for (unsigned code = 0x80; code <= 0xFF; ++code)
        if (toCodePoint(static_cast<char>(code)) == point) return static_cast<char>(code);
    return std::nullopt;
}

std::string markupOf(char32_t point)
{
    if (point == '&') return "&amp;";
    if (point == '<') return "&lt;";
    if (point == '>') return "&gt;";
    if (point == kHardBlankPoint) return std::string(kHardBlank);
    if (const auto byte = byteOf(point)) return {*byte};
    return "&#" + std::to_string(static_cast<unsigned long>(point)) + ";";
}

class TypedWriter {
public:
    TypedWriter(std::u16string_view typed, TypedBorders borders)
        : typed_(typed)
        , hides_(borders.blankHidesAhead)
        , blankBehind_(borders.blankBehind)
        , takesBreaks_(borders.takesBreaks)
    {
    }

    TypedText take()
    {
        while (position_ < typed_.size()) {
            const char32_t point = nextPoint(typed_, position_);
            if (isLineEnd(point))
                lineBreak(point);
            else if (point == ' ' || point == '\t')
                blank();
            else if (!isLeftOut(point))
                add(markupOf(point), false);
        }
        return std::move(text_);
    }

private:
    void lineBreak(char32_t point)
    {
        if (point == '\r' && position_ < typed_.size() && typed_[position_] == '\n') ++position_;
        if (!takesBreaks_) return blank();
        text_.markup += kLineBreak;
        text_.shown += static_cast<char16_t>(kLineBreakShown);
        hides_ = true;
    }

    void blank()
    {
        const bool isLast = position_ == typed_.size();
        const bool isHidden = hides_ || (isLast && blankBehind_);
        add(isHidden ? std::string(kHardBlank) : " ", !isHidden);
    }

    void add(const std::string& markup, bool hidesNext)
    {
        text_.markup += markup;
        text_.shown
            += markup.starts_with('&') ? shownReference(markup).shown : shownByte(markup.front());
        hides_ = hidesNext;
    }

    std::u16string_view typed_;
    std::size_t position_ = 0;
    bool hides_; // a plain blank would not be seen here
    bool blankBehind_;
    bool takesBreaks_;
    TypedText text_;
};

} // namespace

TypedText typedText(std::u16string_view typed, TypedBorders borders)
{
    return TypedWriter(typed, borders).take();
}

} // namespace quillmere
