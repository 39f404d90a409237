#include "document/design_to_wml.h"
#include "document/text/failure.h"
#include "document/wml_to_design.h"
#include "literal/conversions.h"
#include "support/small_deck.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

// Both conversions against versions that replace tag after tag in the text itself.

namespace quillmere {
namespace {

/// What `convert` gives back and leaves; "!" where it fails.
template <typename Failing, typename Convert> std::string outcome(std::string text, Convert convert)
{
    try {
        const bool found = convert(text);
        return text + (found ? " found" : "");
    } catch (const Failing&) {
        return "!";
    }
}

class ConversionsTest : public testing::Test {
protected:
    void expectAgreement(const std::string& text)
    {
        const auto design = [this](std::string& t) { return WmlToDesign(t, 0, none_.session); };
        const auto wml = [this](std::string& t) { return DesignToWml(t, none_.session), false; };
        const auto slowWml = [](std::string& t) { return literal::DesignToWml(t), false; };
        ASSERT_EQ(outcome<RuntimeFailure>(text, design),
            outcome<std::runtime_error>(text, literal::WmlToDesign))
            << text;
        ASSERT_EQ(outcome<RuntimeFailure>(text, wml), outcome<std::runtime_error>(text, slowWml))
            << text;
    }

private:
    test::SmallDeck none_;
};

constexpr std::array<std::string_view, 45> kMarkup{"<", ">", "\"", " ", "/", "-", "X", "<P", "</p>",
    "<b>", "</B", "<em>", "</EM>", "<br", "</br>", "<table ", "</table>", "<td>", "<tr ",
    "title=", "Title=\"A\"", "border=", "align=", "align=\"Left\"", "columns=2", "<do type",
    "</do>", "label=", "label=\"Ab\"", "<go ", "href=", "HREF=\"#A\"", "href=\"", "<a ", "</A>",
    "<img ", "src=\"A\"", "alt=\"", "vspace=", "<option", "</option", "<select", "<!--", "-->",
    "<card id=\"a\">"};
constexpr std::array<std::string_view, 14> kMarkers{"<!--", "-->", "/", "Go", "card", "OPTION",
    "select", "do type", "do", " label=\"", "A\"", "id=\"", "<", ">"};

TEST_F(ConversionsTest, AgreeOnAllShortTexts)
{
    const auto check = [this](const std::string& text) { expectAgreement(text); };
    test::forEachSequence(std::array<std::string_view, 5>{"<", ">", "a", "/", "P"}, 7, check);
    test::forEachSequence(kMarkers, 4, check);
    test::forEachSequence(kMarkup, 3, check);
}

TEST_F(ConversionsTest, AgreeOnEveryElement)
{
    for (const std::string name :
        {"p", "b", "big", "small", "strong", "em", "i", "u", "br", "table", "tr", "td", "do", "go",
            "a", "img", "option", "select", "wml", "html", "card", "head"}) {
        for (const std::string form : {"<", "</", "<!--", "<!--/"}) {
            for (const std::string end : {">", " x>", "x>", "/>", "-->", " type>"})
                expectAgreement(std::string(form).append(name).append(end).append("b"));
        }
    }
}

TEST_F(ConversionsTest, AgreeOnSoups)
{
    for (std::uint64_t seed = 0; seed < 20000 && !HasFatalFailure(); ++seed) {
        expectAgreement(test::randomSoup(seed, kMarkup, 4 + seed % 40));
        expectAgreement(test::randomSoup(seed, kMarkers, 4 + seed % 40));
    }
}

} // namespace
} // namespace quillmere
