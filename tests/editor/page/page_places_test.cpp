#include "editor/page/page_places.h"

#include "support/row_file.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace quillmere {
namespace {

/// The text with a bar at the offset of each place.
std::string withPlaces(const std::string& text)
{
    const auto page = readSurfacePage(text);
    std::string result = text;
    for (auto block = page.blocks.size(); block-- > 0;) // the offsets ahead stay valid
        for (auto offset = itemCount(page.blocks[block]) + 1; offset-- > 0;)
            result.insert(offsetAt(page, {block, offset}), "|");
    return result;
}

std::string withoutBars(std::string text)
{
    std::erase(text, '|');
    return text;
}

TEST(PagePlaces, LieWhereTypedTextBelongs)
{
    for (const auto& row : test::rowsOf("page_places.txt"))
        EXPECT_EQ(withPlaces(withoutBars(row.at(1))), row.at(1)) << row.at(0);
}

TEST(PagePlaces, KnowTheTextAsItIsReadAgain)
{
    const std::tuple<std::string_view, std::vector<std::size_t>> rows[] = {
        {"a\r\n\nb\rc", {0, 1, 1, 1, 1, 2, 2, 3}},
        {"?a<b\nc", {0, 0, 0, 1, 2, 2, 3}}, // what stands ahead of the first tag is dropped
        {"a\nb<c", {0, 1, 1, 2, 3, 4}}, // but of the first line only
    };
    for (const auto& [text, offsets] : rows)
        for (std::size_t offset = 0; offset <= text.size(); ++offset)
            EXPECT_EQ(offsetInJoinedLines(text, offset), offsets.at(offset)) << text << offset;
}

} // namespace
} // namespace quillmere
