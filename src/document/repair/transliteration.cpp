// One sweep over the characters; a text of 7 bits is left untouched. Held by
// clean_passes_test.cpp.

#include "document/repair/clean_design_html.h"

#include "document/text/limits.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <cstdint>

namespace quillmere {
namespace {

struct Letter {
    char letter; // Windows-1252
    std::string_view plain;
};
constexpr Letter kLetters[] = {{'\xC4', "Ae"}, {'\xD6', "Oe"}, {'\xDC', "Ue"}, {'\xE4', "ae"},
    {'\xF6', "oe"}, {'\xFC', "ue"}, {'\xDF', "ss"}};

bool isPlain(char character)
{
    return static_cast<unsigned char>(character) < 127;
}

void appendPlain(std::string& result, char character)
{
    const auto* const found = std::ranges::find(kLetters, character, &Letter::letter);
    result += found == std::end(kLetters) ? " " : found->plain;
}

void appendReference(std::string& result, char character)
{
    const auto point = static_cast<std::uint32_t>(toCodePoint(character));
    result.append("&#").append(std::to_string(point)).append(";");
}

} // namespace

void TransliterateGerman(std::string& text, const OutputRules& rules)
{
    requireAddressable(text);
    const auto nextSpecial
        = [&text](auto from) { return std::find_if_not(from, text.cend(), isPlain); };
    auto special = nextSpecial(text.cbegin());
    if (special == text.cend()) return;
    const auto append = rules.writesCharacterReferences() ? appendReference : appendPlain;
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    for (auto plain = text.cbegin(); plain != text.cend();) {
        result.append(plain, special);
        plain = special;
        for (; plain != text.cend() && !isPlain(*plain); ++plain)
            append(result, *plain);
        special = nextSpecial(plain);
    }
    requireAddressable(result);
    text = std::move(result);
}

} // namespace quillmere
