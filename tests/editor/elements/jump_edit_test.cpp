#include "editor/elements/jump_edit.h"
#include "editor/elements/number_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace quillmere {
namespace {

TEST(WithoutDoBlock, TakesTheJumpOrTheFirstWholeBlock)
{
    EXPECT_EQ(withoutDoBlock("<!--do type=\"prev\"--><!--prev/--><!--/do-->a"
                             "<!--do type=\"accept\"--><!--go href=\"#\"/--><!--/do-->b"),
        "<!--do type=\"prev\"--><!--prev/--><!--/do-->ab");
    EXPECT_EQ(withoutDoBlock(
                  "a<!--DO type=\"accept\"--><!--go href=\"#\"/--><!--/DO-->b<!--do--><!--/do-->"),
        "ab<!--do--><!--/do-->");
    EXPECT_EQ(withoutDoBlock("a<!--do-->b"), "a<!--do-->b");
}

TEST(WithTargetsRenamed, ChangesWholeTargetsOnly)
{
    EXPECT_EQ(withTargetsRenamed(
                  "<a href=\"#a\">#a</a><a href=\"#ab\"><!--go href=\"#a\"/-->", "a", "neu"),
        "<a href=\"#neu\">#a</a><a href=\"#ab\"><!--go href=\"#neu\"/-->");
    EXPECT_EQ(withTargetsRenamed("<!--option onpick=\"#a\"--><input type=radio name=\"TempName1\" "
                                 "onclick=\"javascript:navigate('#a')\">",
                  "a", "neu"),
        "<!--option onpick=\"#neu\"--><input type=radio name=\"TempName1\" "
        "onclick=\"javascript:navigate('#neu')\">");
    EXPECT_EQ(withTargetsRenamed("<!--#do &lt;do&gt;&lt;go href='#a'/&gt;&lt;/do&gt;-->", "a",
                  "neu", OutputRules(true)),
        "<!--#do &lt;do&gt;&lt;go href='#neu'/&gt;&lt;/do&gt;-->");
}

TEST(CardIdFault, TellsWhatNoLinkCanLeadTo)
{
    EXPECT_EQ(cardIdFault(""), CardIdFault::Empty);
    for (const std::string id : {"Bereich1", "a-b_c.d",
             "K\xFC"
             "che",
             "\xDC"
             "1"})
        EXPECT_EQ(cardIdFault(id), CardIdFault::None) << id;
    for (const std::string id : {"a b", "a\"b", "a<b", "#a", "a&b", "\xE9t\xE9"})
        EXPECT_EQ(cardIdFault(id), CardIdFault::BadCharacter) << id;
    for (const std::string id : {"1a", "-a", "."})
        EXPECT_EQ(cardIdFault(id), CardIdFault::BadBegin) << id;
}

TEST(NumberRules, AreThoseOfTheFields)
{
    // value: of 1 to 30
    const std::tuple<std::string, bool, std::optional<int>> cases[]
        = {{"", false, {}}, {"30", true, 30}, {"31", true, {}}, {"0", true, {}}, {"12,x", true, 12},
            {",5", false, {}}, {"-1", false, {}}, {"1a", false, {}}, {"000000007", true, 7},
            {"0000000007", false, {}}, {"999999999", true, {}}};
    for (const auto& [text, isNumber, value] : cases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(isFieldNumber(text), isNumber);
        EXPECT_EQ(fieldNumber(text, {1, 30}), value);
    }
    EXPECT_EQ(NumberFilter("12a3"), "123");
    EXPECT_EQ(NumberFilter("1.234"), "1234");
    EXPECT_EQ(NumberFilter("1234567890"), "12345678");
}

} // namespace
} // namespace quillmere
