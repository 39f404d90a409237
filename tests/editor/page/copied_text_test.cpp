#include "support/marked_text.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace quillmere {
namespace {

constexpr auto kTable = "<table><tr><td>a</td><td><p>b</p></td></tr><tr><td>c</td></tr></table>";

TEST(MarkupBetween, CompletesWhatIsCut)
{
    for (const auto& row : test::rowsOf("copied_markup.txt")) {
        SCOPED_TRACE(row.at(0));
        const test::MarkedPage marked(row.at(1));
        EXPECT_EQ(markupBetween(marked.page, marked.from, marked.to), row.at(2));
    }
}

TEST(TextBetween, HasLinesForBlocksAndTabsBetweenCells)
{
    const std::tuple<const char*, std::string, std::u16string> rows[] = {
        {"characters", "[a&auml;  &nbsp;\x80&lt;]b", u"a\u00E4 \u00A0\u20AC<"},
        {"breaks and blocks", "<p>a[b<br/>c</p><p></p><p>d]e</p>", u"b\nc\n\nd"},
        {"objects", "[<img src=\"x\" alt=\"B&amp;W\"></img><input type=radio>a<font>]", u"B&Wa"},
        {"a table", "x[y" + std::string(kTable) + "z]", u"y\na\tb\nc\nz"},
        {"cells", "<table><tr><td>a[b</td><td></td><td>c]d</td></tr></table>", u"ab\t\tcd"},
    };
    for (const auto& [name, source, text] : rows) {
        SCOPED_TRACE(name);
        const test::MarkedPage marked(source);
        EXPECT_EQ(textBetween(marked.page, marked.from, marked.to), text);
    }
}

} // namespace
} // namespace quillmere
