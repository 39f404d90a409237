#include "cli/core_session.h"
#include "document/changes/deck_changes.h"
#include "document/changes/deck_changes_report.h"
#include "document/changes/markup_document.h"
#include "document/deck_repair.h"
#include "document/platform/files.h"
#include "document/text/windows1252.h"
#include "support/wml_validity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace quillmere {
namespace {

struct Example {
    std::string directory; // with its separator
    std::string bytes;
    std::string text;
};

std::vector<Example> examples()
{
    std::vector<Example> decks;
    const std::filesystem::path root = QUILLMERE_SOURCE_DIR "/examples";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.path().extension() != ".wml") continue;
        const auto bytes = readFile(entry.path().string());
        decks.push_back(
            {entry.path().parent_path().string() + "/", bytes, textFromDeckBytes(bytes)});
    }
    return decks;
}

std::string repaired(const Example& deck, const std::string& text, bool standardOutput)
{
    cli::CoreSession core(standardOutput);
    return repairedDeck(core.session, text, deck.directory);
}

void expectKeptByDefault(const Example& deck)
{
    const auto written = repaired(deck, deck.text, false);
    const auto report = DeckChanges(deck.text, written);
    for (const auto& change : report.changes)
        EXPECT_TRUE(std::any_of(change.before.begin(), change.before.end(), [](char c) {
            return static_cast<unsigned char>(c) > 126;
        })) << toUtf8(describeChange(change));
    EXPECT_EQ(repaired(deck, written, false), written);
    EXPECT_TRUE(report.wellFormed());
}

TEST(Examples, LoseNothingButTheirAccentsAndWithStandardOutputNothing)
{
    for (const auto& deck : examples()) {
        SCOPED_TRACE(deck.directory + deck.text.substr(0, 200));
        EXPECT_EQ(test::wmlFaults(deck.bytes), "");
        const bool isForm = deck.text.find("<input") != std::string::npos; // for the switch alone
        if (!isForm) expectKeptByDefault(deck);
        const auto standard = DeckChanges(deck.text, repaired(deck, deck.text, true));
        EXPECT_TRUE(standard.changes.empty());
        EXPECT_TRUE(standard.wellFormed());
    }
}

} // namespace
} // namespace quillmere
