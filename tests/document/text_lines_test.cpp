#include "document/text_lines.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace quillmere {
namespace {

/// The lines, each with a bar behind it, taken character by character.
std::string linesByCharacter(std::string_view text)
{
    std::string lines;
    bool isOpen = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isLineFeedOfPair = text[i] == '\n' && i > 0 && text[i - 1] == '\r';
        if (isLineFeedOfPair) continue;
        isOpen = text[i] != '\r' && text[i] != '\n';
        lines += isOpen ? text[i] : '|';
    }
    return isOpen ? lines + '|' : lines;
}

TEST(TextLines, EndAtEachKindOfLineEnd)
{
    constexpr std::string_view kPieces[] = {"a", "\r", "\n", "?"};
    test::forEachSequence(kPieces, 7, [](const std::string& text) {
        std::string lines;
        std::string joined;
        std::string ended;
        LineReader reader(text);
        while (const auto line = reader.next()) {
            lines.append(*line) += '|';
            joined.append(*line);
            ended.append(*line).append("\r\n");
        }
        ASSERT_EQ(lines, linesByCharacter(text)) << testing::PrintToString(text);
        ASSERT_EQ(joinLines(text), joined);
        ASSERT_EQ(withCrLf(text), ended);
    });
}

} // namespace
} // namespace quillmere
