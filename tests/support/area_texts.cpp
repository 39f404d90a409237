#include "support/area_texts.h"

#include "document/platform/files.h"
#include "generator/deck_generator.h"
#include "support/small_deck.h"
#include "support/token_soup.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <vector>

namespace quillmere::test {
namespace {

namespace fs = std::filesystem;
using Use = std::function<void(const std::string&, const std::string&)>;

const std::string kSources = QUILLMERE_SOURCE_DIR;
constexpr std::uint64_t kDecks = 12;
constexpr std::uint64_t kSoups = 60;

constexpr std::string_view kTokens[]
    = {"<p>", "</p>", "<P ALIGN=right>", "<b>", "</b>", "<i>", "</i>", "<big>", "</big>", "<SMALL>",
        "<a href=\"x\">", "<A HREF=y>", "</a>", "<table>", "</table>", "<tr>", "</tr>", "<td>",
        "</td>", "<br/>", "<BR>", "<img src=\"x.bmp\" alt=\"x\">", "</img>", "<!--select-->",
        "<!--/select-->", "<!--option value=\"1\"-->", "<input type=radio name=\"TempName1\">",
        "<!--/option-->", "<!-- so -->", "<center>", "<do type=\"prev\">", "</do>", "&auml;",
        "&#223", "&nbsp;", "&", "<", ">", " ", "  ", "\r\n", "Wort", "\xE4\xF6\xFC"};

constexpr auto kSoupTags = std::to_array<std::string_view>({"<p>", "<p align=center>", "</p>",
    "<table>", "<TABLE border=1>", "</table>", "<tr>", "</tr>", "<td>", "</td>", "<th>", "</TH>",
    "<tbody>", "<b>", "</b>", "<i>", "</i>", "<big>", "</small>", "<a href=x>", "</a>",
    "<img src=\"a\">", "</img>", "<input type=radio>", "<br/>", "</br>", "<center>", "</center>",
    "<font size=\"2\">", "<!--select-->", "<!--/select-->", "<!--option a=\"b\"-->",
    "<!--/option-->", "<!-- x > y -->", "<!--", "-->", "<", ">", "&", "&amp;", "&auml", "&#65",
    "&#", "a", "b", " ", "  ", "\r\n", "\t", "<BODY>", "</BODY>", "<html>", "</html>",
    "<!--card-->", "<!--/card-->", "<!--do-->", "<!--/do-->", "<!x>", "<td", "<a"});

// Few, so that what they make often fits.
constexpr auto kParts = std::to_array<std::string_view>({"<table><tr><td>", "</td></tr></table>",
    "</td><td>", "</td></tr>", "<tr><td>", "</table>", "</td>", "<p>", "</p>", "<b>", "</b>", "<a>",
    "</a>", "<!--x-->", "<!--/x-->", "a", " ", "\r\n", "<br/>", "<x>"});

// The same for what is shown where nothing is lost.
constexpr auto kMarks = std::to_array<std::string_view>({"<p>", "</p>", "<!--#x y-->",
    "<!--#input-->", "<!--fieldset-->", "<!--/fieldset-->", "<!--optgroup-->", "<!--/optgroup-->",
    "<!--anchor-->", "<!--/anchor-->", "<!--pre-->", "<!--/pre-->", "<!--do-->", "<!--/do-->",
    "<!--go/-->", "<!--option--><input type=radio>", "<!--/option-->", "a", " ", "<b>", "</b>",
    "<table><tr><td>", "</td></tr></table>", "\r\n", "<br/>"});

constexpr auto kBlanks = std::to_array<std::string_view>(
    {" ", "\r\n", "<p>", "</p>", "<b>", "</a>", "<a>", "<!--x-->", "a", "<table><tr><td></table>"});

// A card as it travels where nothing is lost: each capital becomes one of the forms of its rule.
struct CardRule {
    char part;
    std::vector<std::string_view> forms;
};

const std::vector<CardRule> kCardRules{
    {'C', {"<!--card id=\"a\"-->\r\n<body>\r\nAAPPP\r\n</body>", "<body>P</body>"}},
    {'A', {"", "<!--#timer x-->"}},
    {'P',
        {"<p>EEE</p>", "<p>EE</p>", "<p>E</p>", "<p></p>", "<!--pre-->W<!--/pre-->",
            "<!--#comment x-->", "<p><table><tr><td>E</td><td>EE</td></tr></table></p>"}},
    {'E',
        {"W", "W", "", "<b>W</b>", "<!--#input x-->", "<!--fieldset c-->EE<!--/fieldset-->",
            "<!--anchor a--><!--go x/-->W<!--/anchor-->",
            "<!--select-->O<!--optgroup b-->OO<!--/optgroup--><!--/select-->",
            "<!--do--><!--go--><!--#setvar x--><!--/go--><!--/do-->"}},
    {'O', {"<!--option d--><input type=radio>W<!--/option-->"}},
    {'W', {"a b", "c<br/>d &amp;"}},
};

std::string grown(SmallRandom& random, std::string_view form)
{
    std::string text;
    for (const char part : form) {
        const auto rule = std::ranges::find(kCardRules, part, &CardRule::part);
        if (rule == kCardRules.end())
            text += part;
        else
            text += grown(random, rule->forms[random.below(rule->forms.size())]);
    }
    return text;
}

void useDeck(const std::string& name, const std::string& text, const Use& use)
{
    SmallDeck deck;
    deck.load(text);
    for (std::size_t area = 0; area < areaCount(deck.session.deck); ++area)
        use(name + ", area " + std::to_string(area), deck.design(area));
}

void useFiles(const std::string& folder, std::string_view ending, const Use& use)
{
    for (const auto& entry : fs::recursive_directory_iterator(kSources + folder))
        if (entry.path().extension() == ending)
            use(entry.path().string(), readFile(entry.path().string()));
}

} // namespace

void forEachAreaText(const Use& use)
{
    use("an empty text", "");
    useFiles("/src/gallery/samples", ".htm", use);
    useFiles("/examples", ".wml",
        [&](const std::string& name, const std::string& text) { useDeck(name, text, use); });
    for (std::uint64_t seed = 1; seed <= kDecks; ++seed) {
        const bool isBroken = seed % 2 != 0;
        useDeck((isBroken ? "broken deck " : "deck ") + std::to_string(seed),
            bench::generateDeck(seed, {.brokenness = isBroken ? 0.3 : 0}), use);
    }
    for (std::uint64_t seed = 1; seed <= kSoups; ++seed)
        use("tags " + std::to_string(seed), randomSoup(seed, kTokens, 10 + seed));
}

OutputRules rulesOf(const std::string& text)
{
    return OutputRules(text.find("<!--#") != std::string::npos);
}

void forEachFormText(const UseText& use)
{
    for (std::uint64_t seed = 0; seed < 150; ++seed) {
        SmallRandom random(seed);
        use(grown(random, "C") + "<!--#-->");
    }
}

void forEachSoup(const UseText& use)
{
    forEachSequence(kBlanks, 4, use);
    for (std::uint64_t seed = 0; seed < 2500; ++seed) {
        use(randomSoup(seed, kSoupTags, 3 + seed % 40));
        use(randomSoup(seed, kParts, 3 + seed % 25));
        use("<table><tr><td>" + randomSoup(seed, kParts, 3 + seed % 25));
        if (seed % 2 == 0) use(randomSoup(seed, kMarks, 3 + seed % 25) + "<!--#x y-->");
    }
}

void forEachDeckText(double faults, const UseText& use)
{
    for (std::uint64_t seed = 0; seed < 30; ++seed)
        useDeck("", bench::generateDeck(seed, {.targetBytes = 1200, .brokenness = faults}),
            [&use](const std::string&, const std::string& text) { use(text); });
}

} // namespace quillmere::test
