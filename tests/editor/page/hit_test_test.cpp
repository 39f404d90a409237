#include "editor/page/hit_test.h"

#include "document/text/failure.h"
#include "document/text/limits.h"
#include "document/text/windows1252.h"
#include "support/row_file.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace quillmere {
namespace {

/// A text with what is marked in it.
struct Drawn {
    std::string text;
    SurfaceSelection selection;
};

std::size_t takeOut(std::string& text, char mark)
{
    const auto at = text.find(mark);
    if (at != std::string::npos) text.erase(at, 1);
    return at;
}

/// Reads "a|b" as a caret, "a[b]c" as marked text, "a^<img>b" as an element: a link that the mouse
/// is on, or else an object that is selected.
Drawn drawn(std::string text)
{
    SurfaceSelection selection;
    if (const auto at = takeOut(text, '^'); at != std::string::npos) {
        const auto name = text.find_first_of(" >", at);
        SurfaceSelection::Element element{lowerCase(text.substr(at + 1, name - at - 1)), {}};
        element.source = {at, text.find('>', at) + 1};
        selection.objectSelected = element.tag != "a";
        if (selection.objectSelected) selection.type = SurfaceSelection::Type::Control;
        (selection.objectSelected ? selection.control : selection.event) = element;
    } else if (const auto begin = takeOut(text, '['); begin != std::string::npos) {
        selection = {SurfaceSelection::Type::Text, false, {}, {}, {begin, takeOut(text, ']')}};
    } else {
        const auto caret = takeOut(text, '|');
        selection.marked = {caret, caret};
    }
    return {text, selection};
}

struct Element {
    const char* startTag;
    const char* endTag;
};
constexpr Element kLink{"<a", "</a"};
constexpr Element kTable{"<table", "</table"};
constexpr Element kOption{"<!--option", "<!--/option"};
constexpr Element kList{"<!--select", "<!--/select"};
constexpr Element kBold{"<b", "</b"};

TEST(HitTest, FindsTheElementAroundTheMarkedPlace)
{
    // found: how the text goes on at the hit; "" for none
    const std::tuple<const char*, Element, const char*, std::string_view> rows[] = {
        {"the mouse is on it", kLink, "<a 1>x</a>^<a 1>Kino</a>y", "<a 1>Kino"},
        {"a picture in a link", kLink, "<a 1>^<img 2></img></a>", "<a 1>"},
        {"the whole table", kTable, "x^<table 1><tr></tr></table>", "<table 1>"},
        {"a button", kOption, "<!--option 1-->^<input 2>A<!--/option-->", "<!--option 1"},
        {"behind the list", kList, "<!--select 1--><!--/select-->|<br/>", ""},
        {"names by their begin", kBold, "<body 1>x|</b></body>", "<body 1>"},
    };
    for (const auto& [name, wanted, sketch, found] : rows) {
        SCOPED_TRACE(name);
        const auto [text, selection] = drawn(sketch);
        const auto hit = HitTester().HitTest(wanted.startTag, wanted.endTag, text, selection, true);
        ASSERT_EQ(hit.Inside, !found.empty());
        ASSERT_GE(hit.position, 1);
        const auto behind = text.substr(static_cast<std::size_t>(hit.position) - 1);
        EXPECT_TRUE(behind.starts_with(found)) << behind;
        if (!hit.Inside) {
            EXPECT_EQ(behind, text.substr(selection.marked.begin)) << "a fragment goes in there";
        }
    }
}

int positionOf(const std::string& text, const std::string& key, int from)
{
    for (auto at = std::max(from, 1); at + static_cast<int>(key.size()) - 1 <= std::ssize(text);
         ++at)
        if (lowerCase(text.substr(static_cast<std::size_t>(at) - 1, key.size())) == key) return at;
    return 0;
}

/// The rule word for word, with positions from 1 and 0 for none.
int startAround(const std::string& text, const Element& wanted, int q)
{
    int start = 0;
    for (int at = positionOf(text, wanted.startTag, 1); at > 0 && at - 2 < q;
         at = positionOf(text, wanted.startTag, at + 1))
        start = at;
    if (start == 0) return 0;
    if (*wanted.endTag == '\0') return positionOf(text, "<", start + 1) > q + 1 ? start : 0;
    const int end = positionOf(text, wanted.endTag, start);
    return end <= std::max(q, 0) ? 0 : start; // 0, none, is ahead of all
}

TEST(HitTest, AgreesWithTheRuleWordForWord)
{
    constexpr std::string_view kTokens[] = {"<a>", "<A", "</a>", "x", ">"};
    test::forEachSequence(kTokens, 5, [](const std::string& text) {
        for (std::size_t at = 0; at <= text.size(); ++at) {
            for (const std::size_t length : {0U, 1U}) {
                if (at + length > text.size()) continue;
                SurfaceSelection selection;
                selection.marked = {at, at + length};
                const int q = static_cast<int>(at) - (length == 0 ? 1 : 0);
                for (const Element& wanted : {kLink, Element{"<a", ""}}) {
                    const auto hit = HitTester().HitTest(
                        wanted.startTag, wanted.endTag, text, selection, true);
                    const int start = startAround(text, wanted, q);
                    ASSERT_EQ(hit.Inside, start > 0) << text << " at " << at;
                    ASSERT_EQ(hit.position, start > 0 ? start : static_cast<int>(at) + 1);
                }
            }
        }
    });
}

TEST(HitTest, KeepsWhatItFoundUntilItLooksAgain)
{
    HitTester tester;
    const auto link = drawn("<a 1>x|y</a>");
    const auto picture = drawn("<a 1>xy</a>^<img 2>");
    const auto ahead = drawn("|<a 1>xy</a>");
    EXPECT_FALSE(tester.HitTest("<a", "</a", link.text, link.selection, false).Inside);
    EXPECT_TRUE(tester.HitTest("<a", "</a", link.text, link.selection, true).Inside);
    EXPECT_TRUE(tester.HitTest("<a", "</a", ahead.text, ahead.selection, false).Inside);
    EXPECT_FALSE(tester.HitTest("<img", "", picture.text, picture.selection, false).Inside);
    const auto hit = tester.HitTest("<img", "", picture.text, picture.selection, true);
    EXPECT_TRUE(hit.Inside);
    EXPECT_EQ(hit.position, 12);
    // The picture is not in that text, so that nothing is known to be marked.
    EXPECT_FALSE(tester.HitTest("<img", "", link.text, picture.selection, true).Inside);
    EXPECT_FALSE(tester.HitTest("<a", "</a", link.text, picture.selection, false).Inside);
}

TEST(FindMarkedRange, TellsTheElementThatTheSurfaceNames)
{
    for (const auto& row : test::rowsOf("marked_ranges.txt")) {
        const auto& wanted = row.at(1);
        SCOPED_TRACE(row.at(0));
        const auto [text, selection] = drawn(row.at(0));
        const auto range = FindMarkedRange(text, selection);
        ASSERT_EQ(range.has_value(), !wanted.empty());
        if (!range) continue;
        EXPECT_TRUE(range->IsElement);
        EXPECT_EQ(range->IsImage, lowerCase(wanted).starts_with("<img"));
        const auto begin = static_cast<std::size_t>(range->Start) - 1;
        EXPECT_EQ(begin, (selection.control ? selection.control : selection.event)->source.begin);
        EXPECT_EQ(text.substr(begin, static_cast<std::size_t>(range->End) - begin), wanted);
    }
}

TEST(FindMarkedRange, TellsTextWhereNoObjectIsSelected)
{
    auto [text, selection] = drawn("xy<img 1>");
    selection.event = {"img", {2, 9}};
    selection.marked = {1, 2};
    const auto range = FindMarkedRange(text, selection);
    ASSERT_TRUE(range);
    EXPECT_FALSE(range->IsElement);
    EXPECT_EQ(range->Start, 2);
    EXPECT_EQ(range->End, 2);
    selection.objectSelected = true;
    EXPECT_TRUE(FindMarkedRange(text, selection)->IsImage);
    selection.event = {"body", {}};
    EXPECT_FALSE(FindMarkedRange(text, selection)) << "some object, but which?";
    selection.control = {"img", {2, 9}};
    EXPECT_TRUE(FindMarkedRange(text, selection)->IsImage);
    EXPECT_FALSE(FindMarkedRange("xyz<img 1>", selection)) << "changed behind the surface's back";
    EXPECT_FALSE(FindMarkedRange("xy", selection));
    selection = {};
    selection.marked = {2, 3};
    EXPECT_FALSE(FindMarkedRange("xy", selection));
}

TEST(IsInsideTable, LooksForTheEndThatComesAheadOfAnyBegin)
{
    const std::tuple<const char*, bool> rows[] = {
        {"|<table></table>", false}, {"<table>|</table>", true},
        {"<table><tr><td>|x</td></tr></TABLE><table></table>", true}, {"<table></table>|", false},
        {"<table></table>|<table></table>", false}, {"<table>|", false},
        {"x|</table>", true}, // no table's begin is asked for
    };
    for (const auto& [sketch, inside] : rows) {
        SCOPED_TRACE(sketch);
        const auto [text, selection] = drawn(sketch);
        EXPECT_EQ(IsInsideTable(text, FindMarkedRange(text, selection)->Start), inside);
    }
    EXPECT_FALSE(IsInsideTable("</table>", 0));
    EXPECT_FALSE(IsInsideTable("</table>", 32767));
}

TEST(MovedIntoTable, ComparesWithTheTextAtThePress)
{
    const std::string table = "<table><tr><td>x</td></tr></table>";
    const std::string picture = R"(<img src="FILE:///t/Bmp1.bmp" alt="a">)";
    const std::string moved = R"(<img src="/t/Bmp1.bmp" alt="b">)";
    const std::string button = "<input type=radio onclick=\"javascript:navigate('#a')\">";
    const auto around = [](const std::string& element) {
        return "<table><tr><td>" + element + "</td></tr></table>";
    };
    const std::tuple<const char*, std::string, std::string, bool> rows[] = {
        {"put in", "^" + picture + table, around(moved), true},
        {"was in it", around("^" + picture) + "x", "x" + around(moved), false},
        {"another one was in it", around(picture) + "^" + picture, around(picture + moved), true},
        {"another one stays", around(picture) + "^" + picture, moved + around(picture), false},
        {"another source", "^" + picture + table, around(R"(<img src="/t/Bmp11.bmp">)"), false},
        {"gone", "^" + picture + table, table, false},
        {"a button", "^" + button + table, around(button), true},
        {"a table in a table", "^" + table + around("x"), around(table), true},
        {"tables nested before", "^" + around(table) + "x", "x" + around(table), false},
        {"a link", "^<a 1>x</a>" + table, around("<a 1>x</a>"), false},
    };
    for (const auto& [name, atPress, now, isMoved] : rows) {
        SCOPED_TRACE(name);
        const auto [text, selection] = drawn(atPress);
        const auto& element = selection.control ? selection.control : selection.event;
        EXPECT_EQ(movedIntoTable(text, now, element.value()), isMoved);
    }
}

TEST(HitTest, RefusesTextsThatPositionsCannotTell)
{
    const std::string text(kMaxTextLength + 1, 'x');
    EXPECT_THROW((void)HitTester().HitTest("<a", "</a", text, {}, false), Overflow);
    EXPECT_THROW((void)FindMarkedRange(text, {}), Overflow);
    EXPECT_THROW((void)ValidInsertPosition(1, text), Overflow);
    EXPECT_THROW((void)IsInsideTable(text, 1), Overflow);
    EXPECT_THROW((void)movedIntoTable("", text, {"table", {}}), Overflow);
}

} // namespace
} // namespace quillmere
