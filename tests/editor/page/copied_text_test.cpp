#include "support/marked_text.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace quillmere {
namespace {

constexpr auto kTable = "<table><tr><td>a</td><td><p>b</p></td></tr><tr><td>c</td></tr></table>";

TEST(MarkupBetween, CompletesWhatIsCut)
{
    const std::string list = "<p>a<!--select--><!--option x--><input type=radio>bc<!--/option-->"
                             "<!--option y--><input type=radio>d<!--/option--><!--/select-->e</p>";
    const auto with = [&](std::size_t begin, std::size_t end) {
        return std::string(list).insert(end, "]").insert(begin, "[");
    };
    const auto at = [&](const char* key) { return list.find(key); };
    const std::string rows[][3] = {
        {"in formats", "<b>a<i>b[c]d</i></b>", "<b><i>c</i></b>"},
        {"ends and starts of formats", "<b>a[b</b>c<i>d]e</i>", "<b>b</b>c<i>d</i>"},
        {"a format that is never ended", "<B>a[b]c", "<B>b</B>"},
        {"a part of a link", "<a href=\"x\">a[b]c</a>", "<a href=\"x\">b</a>"},
        {"paragraphs", "<p>a[b</p>\r\n<p align=right>c</p><p>d]e</p>", "b<br/>c<br/>d"},
        {"half of a marker", "a[b<!--do-->c]d<!--/do-->", "bc"},
        {"a table", "x[y" + std::string(kTable) + "z]", "y" + std::string(kTable) + "z"},
        {"a part of a caption", with(at("c<!--"), at("<!--/opt")), "c"},
        {"an option", with(at("<input"), at("bc")),
            "<!--select--><!--option x--><input type=radio>bc<!--/option--><!--/select-->"},
        {"a list", with(at("a<!"), at("e</p>")), list.substr(3, list.size() - 8)},
    };
    for (const auto& [name, source, markup] : rows) {
        SCOPED_TRACE(name);
        const test::MarkedPage marked(source);
        EXPECT_EQ(markupBetween(marked.page, marked.from, marked.to), markup);
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
