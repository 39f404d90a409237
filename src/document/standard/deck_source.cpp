// Held by tests/document/standard/deck_source_test.cpp.

#include "document/standard/deck_source.h"

#include "document/standard/piece_alignment.h"
#include "document/text/content_hash.h"
#include "document/text/text_lines.h"
#include "document/wml/deck_bytes.h"
#include "document/wml/utf16_text.h"

#include <algorithm>
#include <vector>

namespace quillmere {

namespace {

constexpr std::string_view kUsualEnd = "\r\n";

std::string reference(char32_t point)
{
    return "&#" + std::to_string(static_cast<std::uint32_t>(point)) + ';';
}

/// Whether a text field shows it as a character. It ends lines and marks its own places by some.
bool isShown(char32_t point)
{
    const bool isHalf = point >= 0xD800 && point <= 0xDFFF;
    const bool isMark = point >= 0xFDD0 && point <= 0xFDEF;
    return !isHalf && !isMark && point != 0x2028 && point != 0x2029 && (point & 0xFFFE) != 0xFFFE;
}

std::string shownText(const DeckBytes& deck, std::string_view slice)
{
    std::string utf8;
    for (std::size_t at = 0; at < slice.size();) {
        const auto character = deck.characterAt(slice, at);
        if (isShown(character.point))
            appendSpelled(utf8, character.point);
        else
            utf8 += reference(character.point);
        at += character.length;
    }
    return utf8;
}

std::string written(const DeckBytes& deck, std::string_view utf8)
{
    std::string text;
    for (std::size_t at = 0; at < utf8.size();) {
        const auto [length, point] = spelledPoint(utf8, at);
        const auto spelled = deck.spelled(point);
        text += spelled == "?" && point != U'?' ? reference(point) : spelled;
        at += std::max<std::size_t>(length, 1);
    }
    return text;
}

/// A line of the file's text.
struct Line {
    std::string_view text;
    std::string_view end; ///< "" for a last line without one
};

std::vector<Line> linesOf(std::string_view text)
{
    std::vector<Line> lines;
    LineReader reader(text);
    while (const auto line = reader.next()) {
        if (!lines.empty()) lines.back().end = {lines.back().text.end(), line->begin()};
        lines.push_back({*line, {}});
    }
    if (!lines.empty()) lines.back().end = {lines.back().text.end(), text.end()};
    return lines;
}

std::vector<std::uint64_t> keysOf(const std::vector<Line>& lines, const DeckBytes& deck)
{
    std::vector<std::uint64_t> keys;
    keys.reserve(lines.size());
    for (const auto& line : lines)
        keys.push_back(contentHash(shownText(deck, line.text)));
    return keys;
}

std::vector<std::string_view> shownLines(std::string_view shown)
{
    std::vector<std::string_view> lines;
    LineReader reader(shown);
    while (const auto line = reader.next())
        lines.push_back(*line);
    return lines;
}

std::vector<std::uint64_t> keysOf(const std::vector<std::string_view>& lines)
{
    std::vector<std::uint64_t> keys;
    keys.reserve(lines.size());
    for (const auto line : lines)
        keys.push_back(contentHash(line));
    return keys;
}

} // namespace

std::string shownSource(const std::string& file)
{
    const DeckBytes deck(file);
    return shownText(deck, deck.text());
}

std::string editedSource(const std::string& file, std::string_view shown)
{
    const DeckBytes deck(file);
    const auto then = linesOf(deck.text());
    const auto now = shownLines(shown);
    const auto places = alignPieces(keysOf(then, deck), keysOf(now));
    const auto end = then.empty() || then.front().end.empty() ? kUsualEnd : then.front().end;
    std::string text;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const auto* const line = places[i] == kNoPiece ? nullptr : &then[places[i]];
        if (line != nullptr)
            text += line->text;
        else
            text += written(deck, now[i]);
        if (i + 1 == now.size())
            text += then.empty() ? std::string_view{} : then.back().end;
        else
            text += line == nullptr || line->end.empty() ? end : line->end;
    }
    return deck.fileOf(text);
}

} // namespace quillmere
