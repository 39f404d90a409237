#include "editor/elements/paragraph_alignment.h"

#include "editor/elements/page_lines.h"
#include "editor/page/markup_tags.h"
#include "support/area_texts.h"
#include "support/marked_text.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace quillmere {
namespace {

TEST(AlignLines, CutsParagraphsAtLines)
{
    const std::map<std::string, Alignment> alignments{
        {"left", Alignment::Left}, {"center", Alignment::Center}, {"right", Alignment::Right}};
    for (const auto& row : test::rowsOf("aligned_lines.txt")) {
        SCOPED_TRACE(row.at(0));
        auto text = row.at(2);
        const bool isCaret = text.find('|') != std::string::npos;
        const auto marked = test::takeMarks(text);
        const auto wanted = alignments.at(row.at(1).substr(0, row.at(1).find(' ')));
        const OutputRules rules(row.at(1).ends_with(" lossless"));
        const auto aligned = alignLines(text, marked, wanted, rules);
        EXPECT_EQ(test::withMarks(aligned.text, aligned.marked, isCaret), row.at(3));
    }
}

TEST(AlignmentOf, ReadsTheParagraph)
{
    EXPECT_EQ(alignmentOf("<P align=center>ab</P>", {17, 17}), Alignment::Center);
    EXPECT_EQ(alignmentOf("<p align='right'>ab</p>", {18, 19}), Alignment::Right);
    EXPECT_EQ(alignmentOf("ab", {1, 1}), Alignment::Left);
    EXPECT_TRUE(takesNoAlignment("<!--pre-->a<!--/pre-->", {10, 11}, OutputRules(true)));
}

std::u16string charactersOf(const SurfacePage& page)
{
    std::u16string characters;
    for (const auto& item : page.items)
        if (item.kind != ItemKind::LineBreak && item.kind != ItemKind::Blank)
            characters += item.shown;
    return characters;
}

bool hasWholeParagraphs(std::string_view text)
{
    bool isOpen = false;
    MarkupScanner tags(text);
    while (const auto tag = tags.next()) {
        if (tag->name != TagName::Paragraph) continue;
        if (isOpen != tag->isEnd) return false;
        isOpen = !tag->isEnd;
    }
    return !isOpen;
}

std::size_t chipsOf(const SurfacePage& page)
{
    return static_cast<std::size_t>(
        std::ranges::count(page.items, ItemKind::Chip, &PageItem::kind));
}

void expectSameLines(test::SmallRandom& random, const std::string& text, const OutputRules& rules)
{
    const auto page = readSurfacePage(text, rules);
    if (page.items.empty() || text.size() > 20000 || !hasWholeParagraphs(text)) return;
    const auto one = random.below(page.items.size());
    const auto other = std::min(one + random.below(20), page.items.size() - 1);
    const SourceRange marked{page.items[one].source.begin, page.items[other].source.end};
    const auto wanted = static_cast<Alignment>(random.below(3));
    SCOPED_TRACE(std::to_string(marked.begin) + " " + std::to_string(marked.end));

    const auto aligned = alignLines(text, marked, wanted, rules);
    const auto after = readSurfacePage(aligned.text, rules);
    EXPECT_EQ(charactersOf(after), charactersOf(page)) << aligned.text;
    EXPECT_TRUE(hasWholeParagraphs(aligned.text)) << aligned.text;
    EXPECT_LE(chipsOf(after), chipsOf(page)) << aligned.text;
    const auto lines = pageLines(page);
    const auto isText = [](const PageLine& line) { return line.paragraph != kNone; };
    if (std::ranges::all_of(lines, isText)) {
        EXPECT_EQ(pageLines(after).size(), lines.size()) << aligned.text;
    }
    if (std::ranges::all_of(lines, &PageLine::mayAlign)) {
        EXPECT_EQ(alignmentOf(aligned.text, aligned.marked, rules), wanted) << aligned.text;
    }
}

TEST(AlignLines, KeepsTextLinesAndPairs)
{
    test::SmallRandom random(7);
    test::forEachAreaText([&random](const std::string& name, const std::string& text) {
        SCOPED_TRACE(name);
        expectSameLines(random, text, OutputRules());
    });
    test::forEachFormText([&random](const std::string& text) {
        SCOPED_TRACE(text);
        expectSameLines(random, text, OutputRules(true));
    });
}

} // namespace
} // namespace quillmere
