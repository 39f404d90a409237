// One sweep over the characters; a text of 7 bits is left untouched. Held by
// clean_passes_test.cpp.

#include "document/repair/transliteration.h"

#include "document/text/limits.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <bit>
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

/// The first place at or behind `from` with a code from 127 on; the text's size where there is
/// none.
std::size_t findSpecial(std::string_view text, std::size_t from)
{
    using Block = std::array<char, 8>;
    // In each byte from 127 on the high bit is set or comes up when 1 is added to it.
    constexpr auto kOnes = std::uint64_t{0x0101010101010101};
    for (Block block; from + block.size() <= text.size(); from += block.size()) {
        std::copy_n(text.data() + from, block.size(), block.data());
        const auto bytes = std::bit_cast<std::uint64_t>(block);
        if (((bytes | (bytes + kOnes)) & kOnes << 7U) != 0) break;
    }
    while (from < text.size() && isPlain(text[from]))
        ++from;
    return from;
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
    auto special = findSpecial(text, 0);
    if (special == text.size()) return;
    const auto append = rules.writesCharacterReferences() ? appendReference : appendPlain;
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    std::size_t copied = 0;
    for (; special < text.size(); special = findSpecial(text, copied)) {
        result.append(text, copied, special - copied);
        append(result, text[special]);
        copied = special + 1;
    }
    result.append(text, copied);
    requireAddressable(result);
    text = std::move(result);
}

} // namespace quillmere
