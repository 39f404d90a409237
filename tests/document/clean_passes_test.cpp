#include "document/repair/clean_passes.h"

#include "document/repair/clean_blanks.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/transliteration.h"
#include "document/text/failure.h"
#include "literal/cleaning.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

namespace quillmere {
namespace {

const OutputRules kUsual(false);

using Apply = std::function<void(std::string&)>;

// A pass and what judges it: the same, step by step with searches over the whole text.
struct Judged {
    std::string name;
    Apply fast;
    Apply slow;
};

std::vector<Judged> judgedPasses()
{
    std::vector<Judged> all;
    const auto slow = literal::cleanPasses();
    for (const auto& pass : cleanPasses()) {
        const auto judge = slow[all.size()].apply;
        all.push_back({std::string(pass.name),
            [&pass](std::string& text) {
                EditedText edited{std::string(text)};
                if ((findCleanFaults(edited.tags()) & pass.mends) != 0) pass.apply(edited);
                text = std::move(edited).take();
            },
            [judge](std::string& text) { text = judge(std::move(text)); }});
    }
    all.push_back({"transliteration", [](std::string& text) { TransliterateGerman(text, kUsual); },
        literal::TransliterateGerman});
    all.push_back({"blanks", cutBlanksAheadOfTags, [](std::string& text) {
                       literal::cutBlankGaps(text);
                       literal::cutBlanksAheadOfTags(text);
                   }});
    all.push_back({"all", [](std::string& text) { CleanDesignHtml(text, kUsual); },
        literal::CleanDesignHtml});
    return all;
}

// nullopt: it cannot be done.
std::optional<std::string> applied(const Apply& apply, std::string text)
{
    try {
        apply(text);
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
    return text;
}

void expectAgreement(const std::vector<Judged>& passes, const std::string& text)
{
    for (const auto& pass : passes)
        ASSERT_EQ(applied(pass.fast, text), applied(pass.slow, text)) << pass.name << text;
}

// Each alphabet holds what a few passes act on, whole and in pieces.
const std::vector<std::vector<std::string_view>> kAlphabets = {
    {"<p>", "</p>", "<P align=\"left\">", "x", "<br/>", "<!--/card-->"},
    {"<p", "</p", "<", ">", " ", "x", "p"},
    {"<!--do-->", "<!--/do-->", "<!--go/-->", "x", "<!--do", "<p>", ">"},
    {"<!--option-->", "<!--/OPTION-->", "<!--/select-->", "x", "<!--select-->", "<input>"},
    {"<!--option", "<!--/option", "-->", "<", "<!--/select", "<!--o", "ption"},
    {"<table>", "</TABLE>", "<tr>", "</tr>", "<p>", "</p >", "x"},
    {"<table", "</table", ">", "</tr", "<tr", "</p", "<p"},
    {"<p>&nbsp;", "</p>", "<p class=\"a\">", "x", "<b>", "</b>", "</p x>"},
    {" ", "\r\n", "<", ">", "x", "\t", "\xE4"},
    {"<body>", "<!--card-->", "<!--do-->", "x", " ", "<table>", "</table>"},
    {"<b>", "</b>", "<i>", "</i>", "<p>", "</p>", " ", "x"},
    {"<p>", "</p>", "<big>", "</big>", "<small>", "</SMALL>", "<br>", "<img", "x>"},
    {"<table>", "</table>", "<tr>", "</tr>", "<td>", "</tr >", "<p>"},
    {"<p align=a>", "<P ALIGN=b>", "<p>", "</p>", "<p x", "align>", "<pre>"},
};

TEST(CleanPasses, AgreeWithRepeatedSearchesOnAllShortTexts)
{
    const auto passes = judgedPasses();
    for (const auto& tokens : kAlphabets)
        test::forEachSequence(
            tokens, 4, [&](const std::string& text) { expectAgreement(passes, text); });
}

TEST(CleanPasses, AgreeWithRepeatedSearchesOnRandomTexts)
{
    const auto passes = judgedPasses();
    std::vector<std::string_view> all = {"<i>", "</i>", "<u>", "</u>", "<img>", "</img>", "<a>",
        "</a>", "<strong>", "</strong>", "&nbsp", "\xFF"};
    for (const auto& tokens : kAlphabets)
        all.insert(all.end(), tokens.begin(), tokens.end());
    for (std::uint64_t seed = 0; seed < 300 && !testing::Test::HasFatalFailure(); ++seed) {
        const auto& tokens = seed % 2 == 0 ? all : kAlphabets[seed / 2 % kAlphabets.size()];
        expectAgreement(passes, test::randomSoup(seed, tokens, 1 + seed % 60));
    }
}

} // namespace
} // namespace quillmere
