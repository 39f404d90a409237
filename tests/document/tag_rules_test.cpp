#include "document/tag_rules.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>

namespace quillmere {
namespace {

constexpr std::array kRows = std::to_array<TagRule>({{"<b>"}, {"<br"}, {"</b"}, {"<x"}});
constexpr std::array kMarkers
    = std::to_array<TagRule>({{"<!--b"}, {"</b>"}, {"<!--/bb"}, {"<b"}, {"<!--bb"}});

const TagRule* firstContained(std::string_view tag, std::span<const TagRule> rules)
{
    for (const auto& rule : rules) {
        if (tag.find(rule.key) != std::string_view::npos) return &rule;
    }
    return nullptr;
}

/// Every second tag is kept, so that the next one overlaps it.
void expectFirstContained(const std::string& text, std::span<const TagRule> rules)
{
    const TagRules table(rules);
    RuleFinder finder(text, table);
    TagScanner tags(text);
    bool keep = true;
    while (const auto tag = tags.next()) {
        ASSERT_EQ(finder.find(*tag), firstContained(tag->in(text), rules)) << text;
        if (keep) tags.resumeAt(tag->begin + 1);
        keep = !keep;
    }
}

TEST(RuleFinder, GivesTheFirstRuleWhoseKeyTheTagContains)
{
    constexpr std::array<std::string_view, 6> kTokens{"<", ">", "b", "r", "/", "x"};
    test::forEachSequence(kTokens, 6, [](const std::string& text) {
        expectFirstContained(text, kRows);
        expectFirstContained(text, std::span(kRows).first(3));
    });
}

TEST(RuleFinder, TellsTagsAndMarkersWithTheSameLetterApart)
{
    constexpr std::array<std::string_view, 5> kTokens{"<", ">", "b", "/", "!--"};
    test::forEachSequence(
        kTokens, 6, [](const std::string& text) { expectFirstContained(text, kMarkers); });
}

} // namespace
} // namespace quillmere
