#include "editor/page/surface_page.h"
#include "editor/page/table_outline.h"

#include "support/page_drawing.h"
#include "support/row_file.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

TEST(SurfacePage, ShowsWhatItsTextMeans)
{
    for (const auto& row : test::rowsOf("surface_page.txt")) {
        SCOPED_TRACE(row.at(0));
        EXPECT_EQ(test::drawn(readSurfacePage(row.at(1))), row.at(2)) << row.at(1);
    }
}

TEST(SurfacePage, NestsTablesToALimit)
{
    std::string text = "x";
    for (std::size_t i = 0; i <= kMaxTableDepth; ++i)
        text = std::string("<table><tr><td>").append(text).append("</td></tr></table>");
    const auto page = readSurfacePage(text);
    EXPECT_EQ(page.tables.size(), kMaxTableDepth);
    EXPECT_EQ(page.cells.back().table, kMaxTableDepth - 1);
    const auto& innermost = page.blocks[page.cells.back().firstBlock];
    EXPECT_EQ(innermost.content.in(text), "<table><tr><td>x</td></tr></table>");
}

TEST(SurfacePage, TellsWhatBelongsTogether)
{
    for (const auto& row : test::rowsOf("page_elements.txt"))
        EXPECT_EQ(test::drawnElements(readSurfacePage(row.at(0))), row.at(1)) << row.at(0);
}

TEST(SurfacePage, FindsAttributes)
{
    const char* const tag
        = "<IMG Src = \"a b.bmp\" vspace=3 ALT='\"' ismap align=\"left\"align=x y=\"z>";
    const std::pair<const char*, const char*> values[] = {{"src", "a b.bmp"}, {"vspace", "3"},
        {"alt", "\""}, {"ismap", ""}, {"align", "left"}, {"y", "z"}, {"space", ""}, {"img", ""}};
    for (const auto& [name, value] : values)
        EXPECT_EQ(attributeOf(tag, name), value) << name;
    EXPECT_EQ(attributeOf("<p", "p"), "");
    EXPECT_EQ(attributeOf("<p align=center>", "align"), "center");
}

} // namespace
} // namespace quillmere
