#include "document/radio_buttons.h"

#include "document/failure.h"
#include "literal/radio_buttons.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quillmere {
namespace {

constexpr std::string_view kTokens[] = {"<!--option-->", "<!--/option-->", "<!--option onpick=\"",
    "a\\b\"-->", "<!--OPTION onpick=c ", ">", "<input", "<inp", "ut>", "<!--/opt", "x"};

std::string inserted(std::string text)
{
    InsertTemporaeryRadioButtons(text);
    return text;
}

std::string deleted(std::string text)
{
    DeleteAllTemporaeryRadioButtons(text);
    return text;
}

void expectAsBySlowSearch(const std::string& text)
{
    std::string slow = text;
    literal::InsertTemporaeryRadioButtons(slow);
    ASSERT_EQ(inserted(text), slow) << text;
    ASSERT_EQ(deleted(slow), [&] {
        literal::DeleteAllTemporaeryRadioButtons(slow);
        return slow;
    }()) << text;
    slow = text;
    literal::DeleteAllTemporaeryRadioButtons(slow);
    ASSERT_EQ(deleted(text), slow) << text;
}

TEST(RadioButtons, AgreeWithRepeatedSearches)
{
    test::forEachSequence(kTokens, 4, expectAsBySlowSearch);
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        expectAsBySlowSearch(test::randomSoup(seed, kTokens, 5 + seed % 20));
        if (testing::Test::HasFatalFailure()) return;
    }
}

TEST(RadioButtons, ComeAndGoWithoutTrace)
{
    const std::string list = "<p><!--select--><!--option onpick=\"C:\\a\\b.wml\"-->Eins<br/>"
                             "<!--/option--><!--option-->Zwei<!--/option--><!--/select--><br/></p>";
    EXPECT_EQ(inserted(list),
        "<p><!--select--><!--option onpick=\"C:\\a\\b.wml\"--><input type=radio name=\"TempName1\" "
        "onclick=\"javascript:navigate('C:/a/b.wml')\">Eins<br/><!--/option--><!--option-->"
        "<input type=radio name=\"TempName2\">Zwei<!--/option--><!--/select--><br/></p>");
    EXPECT_EQ(deleted(inserted(list)), list);
    EXPECT_EQ(
        deleted("<!--option--><INPUT type=radio name=TempName7><INPUT>x<!--/option--><input>"),
        "<!--option-->x<!--/option--><input>");
}

TEST(RadioButtons, ATextThatGetsTooLongStays)
{
    const std::string list = "<!--option--><!--/option-->" + std::string(32730, 'x');
    std::string text = list;
    EXPECT_THROW(InsertTemporaeryRadioButtons(text), Overflow);
    EXPECT_EQ(text, list);
}

TEST(RadioButtons, HostileTextsTakeNoTime)
{
    const auto begin = std::chrono::steady_clock::now();
    for (const std::string piece : {"<!--option-->", "<!--/option-->", "<", "<input>", "<!--option",
             "<!--option--><input><!--/option-->", "<inp<input>ut>", "<!--option-->x<input "}) {
        std::string text = "<!--option-->";
        while (text.size() + piece.size() < 20000)
            text += piece;
        text += "<!--/option-->";
        DeleteAllTemporaeryRadioButtons(text);
        text.resize(std::min<std::size_t>(text.size(), 8000));
        InsertTemporaeryRadioButtons(text);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(200));
}

} // namespace
} // namespace quillmere
