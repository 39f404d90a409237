#include "support/area_texts.h"

#include "document/platform/files.h"
#include "generator/deck_generator.h"
#include "support/small_deck.h"
#include "support/token_soup.h"

#include <filesystem>

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
        bench::DeckOptions options;
        const bool isBroken = seed % 2 != 0;
        options.brokenness = isBroken ? 0.3 : 0;
        useDeck((isBroken ? "broken deck " : "deck ") + std::to_string(seed),
            bench::generateDeck(seed, options), use);
    }
    for (std::uint64_t seed = 1; seed <= kSoups; ++seed)
        use("tags " + std::to_string(seed), randomSoup(seed, kTokens, 10 + seed));
}

} // namespace quillmere::test
