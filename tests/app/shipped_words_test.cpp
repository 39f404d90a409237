#include "app/resource_text.h"
#include "app/word_list.h"
#include "app/word_table.h"
#include "document/platform/files.h"
#include "document/text/text_lines.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere {
namespace {

std::string fileOf(const char* skins)
{
    return readFile(std::string(QUILLMERE_SOURCE_DIR "/data/") + skins + "/ResWords.ini");
}

std::multiset<int> idsOfTheFile(const char* skins)
{
    std::multiset<int> ids;
    const auto text = joinLines(fileOf(skins));
    ResourceEntries entries(text, "<word", "</word");
    while (const auto entry = entries.next())
        ids.insert(shortNumber(resourceAttribute(entry->tag, "id=")).value_or(-1));
    return ids;
}

std::size_t countOf(std::string_view text, std::string_view part)
{
    std::size_t count = 0;
    for (auto at = text.find(part); at != npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

TEST(ShippedWords, HaveJustTheNumbersThatTheProgramAsksFor)
{
    std::multiset<int> asked;
    for (const auto& use : kWordIds)
        asked.insert(use.id);
    for (const auto* skins : {"Skins", "Skins.en"})
        EXPECT_EQ(asked, idsOfTheFile(skins)) << skins;
    EXPECT_EQ(std::set<int>(asked.begin(), asked.end()).size(), asked.size()); // none twice
    const auto names = readFile(QUILLMERE_SOURCE_DIR "/src/document/platform/word_ids.h");
    EXPECT_EQ(countOf(names, "constexpr int k"), std::size(kWordIds));
}

void expectFittingWord(const WordUse& use, const WordEntry& word)
{
    EXPECT_FALSE(word.text.empty());
    EXPECT_LT(word.text.size(), 1000U); // not cut
    EXPECT_EQ(countOf(word.text, "<?>"), static_cast<std::size_t>(use.gaps));
    const auto markers = countOf(word.text, "<?>") + countOf(word.text, "<br>");
    EXPECT_EQ(countOf(word.text, "<"), markers);
    EXPECT_EQ(countOf(word.text, ">"), markers);
    EXPECT_EQ(word.text.find("  "), npos);
    // UTF-8 would show as pairs such as "Ã¼"; the other codes have no character.
    EXPECT_EQ(word.text.find_first_of("\x81\x8d\x8f\x90\x9d\xc3\xe2"), npos);
}

TEST(ShippedWords, FitTheirUse)
{
    for (const auto* skins : {"Skins", "Skins.en"}) {
        const auto words = wordsFromText(fileOf(skins));
        for (const auto& use : kWordIds) {
            SCOPED_TRACE(skins + std::to_string(use.id));
            expectFittingWord(use, words.at(static_cast<std::size_t>(use.id)));
        }
    }
}

} // namespace
} // namespace quillmere
