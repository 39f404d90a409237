// Held by tests/document/standard/deck_source_test.cpp.

#include "document/standard/deck_source.h"

#include "document/standard/piece_alignment.h"
#include "document/text/content_hash.h"
#include "document/text/text_lines.h"
#include "document/wml/deck_bytes.h"

#include <vector>

namespace quillmere {

namespace {

constexpr std::string_view kUsualEnd = "\r\n";

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
    for (const auto& line : lines)
        keys.push_back(contentHash(deck.decoded(line.text)));
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
    for (const auto line : lines)
        keys.push_back(contentHash(line));
    return keys;
}

} // namespace

std::string shownSource(const std::string& file)
{
    const DeckBytes deck(file);
    return deck.decoded(deck.text());
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
            text += deck.encoded(now[i]);
        if (i + 1 == now.size())
            text += then.empty() ? std::string_view{} : then.back().end;
        else
            text += line == nullptr || line->end.empty() ? end : line->end;
    }
    return deck.fileOf(text);
}

} // namespace quillmere
