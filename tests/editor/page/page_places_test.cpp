#include "editor/page/page_places.h"

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
    constexpr std::pair<const char*, const char*> kRows[] = {
        {"nothing", "|"},
        {"plain text", "|a|&auml;| \t|b|"},
        {"the frame", "<BODY>\r\n<p>|a|</p>\r\n</BODY></HTML>"},
        {"formats", "<p><b>|a|</b><i>b|</i></p>"},
        {"behind the last letter of a format and ahead of the next", "<p>|a|<b>b|</b>c|</p>"},
        {"links", "<p>|<a href=\"x\">a|b</a>|c|<a><b>d</b></a>|</p>"},
        {"links in formats", "<p><b>|<a>a</a>|</b><a></a></p>"},
        {"links in links", "|<a><a>a|b</a></a>|c|"},
        {"a link that goes on", "<p>|<a>a|</p><p>|b</a>|</p>"},
        {"a link never ended", "|<a>a|b|"},
        {"options",
            "<p>|a|<!--select--><!--option--><input type=radio>|b|<!--/option--><!--option-->"
            "<input type=radio>|<!--/option--><!--/select--></p>"},
        {"at the start ahead of markers", "<p><b>|<!--select--><!--option--><input type=radio>|b|"},
        {"pictures and breaks", "|<img></img>|<br/>|<img>|"},
        {"chips", "|<font>|a|</font>|"},
        {"empty blocks",
            "<p>|</p><p><b><i>|</i></b></p><p>\r\n|</p><p>|<a></a></p><p>|<!--x--></p>"},
        {"layout", "<p>\r\n|a|\r\n</p>"},
        {"layout in an empty block", "<p>\r\n<b>|\r\n</p>"},
        {"tables",
            "|<table><tr><td>|a|</td><td>\r\n|</td></tr></table>|<table><tr><td>|<td><p>|b|"
            "<tr></table>\r\n|"},
        {"a table without end", "<p>|<table><tr><td>|</td></tr>|b|</p>"},
    };
    for (const auto& [name, text] : kRows)
        EXPECT_EQ(withPlaces(withoutBars(text)), text) << name;
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
