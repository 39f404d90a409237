#include "support/marked_text.h"

#include "document/text/failure.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

struct Row {
    const char* name;
    std::string before;
    std::u16string typed;
    std::string after;
};

TEST(TypeText, PutsTextInThePlaceOfTheMarked)
{
    const Row rows[] = {
        {"for all of a format", "<p>a<b><i>[b]</i></b></p>", u"x", "<p>a<b><i>x|</i></b></p>"},
        {"for a part with two formats", "<p><b>a[b</b><i>c</i>]</p>", u"x", "<p><b>ax|</b></p>"},
        {"for a line that a table leaves", "[<table><tr><td>a</table><p>]b</p>", u"x",
            "<p>x|b</p>"},
        {"for cells", "<table><tr><td>a[b</td><td>c]</td></tr></table>", u"x",
            "<table><tr><td>x|</td><td></td></tr></table>"},
        {"for an option",
            "<!--select--><!--option-->[<input type=radio>]b<!--/option--><!--/select-->", u"x",
            "x|"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const test::MarkedPage marked(row.before);
        const auto edit = typeText(marked.page, marked.from, marked.to, row.typed);
        EXPECT_EQ(test::editedWithCaret(marked.page, edit), row.after);
        const auto back = reverse(marked.page.text, edit, 3);
        EXPECT_EQ(edited(edited(marked.page.text, edit), back), marked.page.text);
        EXPECT_EQ(back.caret, 3U);
    }
}

TEST(TypeText, WritesEachCharacterSoThatItIsSeen)
{
    const Row rows[] = {
        {"Windows-1252", "<p>|</p>", u"\u00E4\u20AC", "<p>\xE4\x80|</p>"},
        {"other characters", "<p>|</p>", u"\u2212\U0001F600\xD800",
            "<p>&#8722;&#128512;&#65533;|</p>"},
        {"a hard blank", "<p>a|</p>", u"\u00A0b", "<p>a&nbsp;b|</p>"},
        {"line ends", "<p>|</p>", u"a\r\nb\nc\u2028\r", "<p>a<br/>b<br/>c<br/><br/>|</p>"},
        {"blanks", "<p>a|b</p>", u"  \tc  ", "<p>a &nbsp; c &nbsp;|b</p>"},
        {"a blank behind a line break", "<p>a<br/>|b</p>", u" ", "<p>a<br/>&nbsp;|b</p>"},
        {"a blank behind a typed line break", "<p>a|</p>", u"\n ", "<p>a<br/>&nbsp;|</p>"},
        {"a blank ahead of a blank", "<p>a| b</p>", u" ", "<p>a&nbsp;| b</p>"},
        {"a letter that makes a reference", "<p>&am|;</p>", u"p", "<p>&amp;amp|;</p>"},
        {"a digit that goes on with one", "<p>&#6|</p>", u"5", "<p>&#6;5|</p>"},
        {"a semicolon behind one without", "<p>&lt|</p>", u";", "<p>&lt;;|</p>"},
        {"a line break behind a '<'", "a<b <c|", u"\n", "a&lt;b &lt;c<br/>|"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const test::MarkedPage marked(row.before);
        const auto edit = typeText(marked.page, marked.from, marked.to, row.typed);
        EXPECT_EQ(test::editedWithCaret(marked.page, edit), row.after);
    }
}

TEST(PasteMarkup, PutsMarkupInAsItIs)
{
    const auto expectPasted = [](const char* markup, const test::EditRow& row) {
        const auto paste = [markup](const auto& page, auto from, auto to) {
            return pasteMarkup(page, from, to, markup);
        };
        test::expectEdits(paste, {row});
    };
    const char* const table = "<table><tr><td>c</td></tr></table>";
    expectPasted(table, {"a table", "<p>a|b</p>", std::string("<p>a") + table + "|b</p>"});
    expectPasted("<!--go/-->", {"nothing to see", "<p>a|b</p>", "<p>a|<!--go/-->b</p>"});
    expectPasted("x", {"behind a format that goes", "<p>a<b>[b]</b></p>", "<p>ax|</p>"});
}

TEST(Edited, RefusesATextThatPositionsCannotTell)
{
    const auto page = readSurfacePage(std::string(32766, 'a'));
    const auto place = lastPlace(page);
    EXPECT_EQ(edited(page.text, typeText(page, place, place, u"b")).size(), 32767U);
    EXPECT_THROW((void)edited(page.text, typeText(page, place, place, u"bc")), Overflow);
}

} // namespace
} // namespace quillmere
