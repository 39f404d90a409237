#include "editor/elements/option_edit.h"

#include "document/repair/radio_buttons.h"

#include "document/text/text_search.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace quillmere {
namespace {

const OutputRules kLossless(true);

std::string withCaret(ElementEdit edit)
{
    return edit.text.insert(static_cast<std::size_t>(edit.position), "|");
}

/// "[a]" becomes an option with this caption that leads to "#a" and has its radio button.
std::string listText(std::string text)
{
    for (auto at = text.find('['); at != std::string::npos; at = text.find('[')) {
        const auto end = text.find(']', at);
        const auto caption = text.substr(at + 1, end - at - 1);
        text.replace(at, end - at + 1,
            "<!--option onpick=\"#" + caption + "\"-->" + caption + "<!--/option-->");
    }
    InsertTemporaeryRadioButtons(text);
    return text;
}

/// The position less 1 of the option with this caption, as dialogs have it.
int positionOf(const std::string& text, const std::string& caption)
{
    return static_cast<int>(text.find("<!--option onpick=\"#" + caption + "\""));
}

const std::string kOne = "<p>x<!--select-->[a]<!--/select--><br/>y</p>";
const std::string kTwo = "<p>x<!--select-->[a][b]<!--/select--><br/>y</p>";

TEST(SetOption, MakesOrJoinsAList)
{
    const std::tuple<std::string, std::string, int, std::string> cases[] = {
        {"a new list", "<p>xy</p>", 4, "<p>x<!--select-->[n]<!--/select--><br/>|y</p>"},
        {"out of a link", "<a href=\"#\">xy</a>z", 12,
            "<a href=\"#\">xy</a><!--select-->[n]<!--/select--><br/>|z"},
        {"out of formats", "<p><i><b>xy</b></i></p>", 10,
            "<p><i><b>x</b></i><!--select-->[n]<!--/select--><br/>|<i><b>y</b></i></p>"},
        {"joins a list ahead", kOne, 100, "<p>x<!--select-->[a][n]<!--/select--><br/>|y</p>"},
        {"joins the next of two lists",
            "<!--select-->[a]<!--/select-->x<!--select-->[b]<!--/select-->y", 140,
            "<!--select-->[a]<!--/select-->x<!--select-->[b][n]<!--/select-->|y"},
    };
    for (const auto& [name, before, position, after] : cases) {
        SCOPED_TRACE(name);
        const auto edit = SetOption(listText(before), position, false, {"n", "#n"});
        auto expected = after;
        const auto bar = expected.find('|');
        expected.erase(bar, 1);
        EXPECT_EQ(edit.text, listText(expected));
        EXPECT_EQ(edit.text.substr(static_cast<std::size_t>(edit.position)), after.substr(bar + 1));
    }
    EXPECT_EQ(SetOption("<p><b>xy</b></p>", 7, false, {"n", "#n"}, kLossless).text,
        listText("<p><b>x</b><!--select-->[n]<!--/select--><b>y</b></p>"));
}

TEST(SetOption, PutsAnotherAheadOfTheMarkedOne)
{
    const auto text = listText(kTwo);
    const auto edit = SetOption(text, positionOf(text, "b"), true, {"n", "#n"});
    EXPECT_EQ(edit.text, listText("<p>x<!--select-->[a][n][b]<!--/select--><br/>y</p>"));
    const auto end = text.find("<!--/option", static_cast<std::size_t>(positionOf(text, "b")));
    const auto behind = newOptionPosition(text, positionOf(text, "b"), end, kLossless);
    EXPECT_EQ(text.find("<!--/select"), static_cast<std::size_t>(behind));
    EXPECT_EQ(newOptionPosition(text, 40, end - 1, kLossless), 40);
}

TEST(ReplaceOption, KeepsThePlace)
{
    const auto one = listText(kOne);
    EXPECT_EQ(withCaret(ReplaceOption(one, positionOf(one, "a"), {"n", "C:\\x\\n.wml"})),
        "<p>x<!--select--><!--option onpick=\"C:\\x\\n.wml\"-->"
        "<input type=radio name=\"TempName1\" onclick=\"javascript:navigate('C:/x/n.wml')\">n"
        "|<!--/option--><!--/select--><br/><br/>y</p>"); // a new list
    EXPECT_EQ(ReplaceOption(one, positionOf(one, "a"), {"n", "#n"}, kLossless).text,
        listText("<p>x<!--select-->[n]<!--/select--><br/>y</p>"));
    const auto two = listText(kTwo);
    EXPECT_EQ(ReplaceOption(two, positionOf(two, "b"), {"n", "#n"}).text,
        listText("<p>x<!--select-->[a][n]<!--/select--><br/>y</p>"));
    EXPECT_EQ(ReplaceOption(two, positionOf(two, "a"), {"", ""}).text,
        listText(
            "<p>x<!--select--><!--option onpick=\"\"--><!--/option-->[b]<!--/select--><br/>y</p>"));
    const std::string more
        = "<!--select--><!--option value=\"v\"--><b>x</b><!--/option--><!--/select-->";
    EXPECT_NE(
        ReplaceOption(more, 1, {"x", ""}, kLossless).text.find("<!--option value=\"v\"-->"), npos);
    const auto changed = ReplaceOption(more, 1, {"x", "#n"}, kLossless).text;
    EXPECT_NE(changed.find("<!--option onpick=\"#n\" value=\"v\"-->"), npos) << changed;
    EXPECT_NE(changed.find("<b>x</b><!--/option-->"), npos) << changed;
}

TEST(DeleteOption, TakesTheListWithTheLastOption)
{
    const auto one = listText(kOne);
    EXPECT_EQ(withCaret(DeleteOption(one, positionOf(one, "a"), false)), "<p>x|<br/>y</p>");
    const auto two = listText(kTwo);
    EXPECT_EQ(DeleteOption(two, positionOf(two, "a"), false).text,
        listText("<p>x<!--select-->[b]<!--/select--><br/>y</p>"));
    const std::string noEnd = "<!--select--><!--option onpick=#a-->x<!--option "
                              "onpick=#b-->y<!--/option--><!--/select-->";
    EXPECT_EQ(DeleteOption(noEnd, 1, true).text,
        "<!--select-->x<!--option onpick=#b-->y<!--/option--><!--/select-->");
    const std::string group = "<!--optgroup title=\"g\"--><!--option-->x<!--/option-->";
    const std::string other = "<!--option-->y<!--/option-->";
    const auto inList = [](const std::string& content) {
        return "<p><!--select-->" + content + "<!--/select--></p>";
    };
    EXPECT_EQ(
        DeleteOption(inList(group + "<!--/optgroup-->" + other), 1, true, OutputRules(true)).text,
        inList(other));
    EXPECT_EQ(
        DeleteOption(inList(group + other + "<!--/optgroup-->"), 1, true, OutputRules(true)).text,
        inList("<!--optgroup title=\"g\"-->" + other + "<!--/optgroup-->"));
}

TEST(GetOption, ReadsAllSpellings)
{
    const std::string cases[][3] = {
        {"<!--OPTION value=\"1\" ONPICK=#ab--><P>a</P> b<!--/OPTION-->", "a b", "#ab"},
        {"<!--option onpick=\"a b.wml\"-->x", "", "a b.wml"},
        {"<!--option value=1--><b>x<!--/option-->", "x", ""},
    };
    for (const auto& [text, caption, target] : cases) {
        SCOPED_TRACE(text);
        const auto option = GetOption(text, 0);
        ASSERT_TRUE(option);
        EXPECT_EQ(option->caption, caption);
        EXPECT_EQ(option->target, target);
    }
    EXPECT_FALSE(GetOption("<p>", 0));
}

} // namespace
} // namespace quillmere
