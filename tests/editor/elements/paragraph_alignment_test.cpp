#include "editor/elements/paragraph_alignment.h"

#include "editor/elements/page_lines.h"
#include "editor/page/markup_tags.h"
#include "support/area_texts.h"
#include "support/marked_text.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quillmere {
namespace {

TEST(AlignLines, CutsParagraphsAtLines)
{
    constexpr auto kLeft = Alignment::Left;
    constexpr auto kCenter = Alignment::Center;
    constexpr auto kRight = Alignment::Right;
    struct Case {
        std::string name;
        std::string before;
        Alignment wanted;
        std::string after;
        OutputRules rules = OutputRules();
    };
    const OutputRules lossless(true);
    const std::string table = "<table><tr><td>t</td></tr></table>";
    const std::vector<Case> cases{
        {"and back", "<p>a</p><p align=\"center\">b|</p><p>c</p>", kLeft, "<p>a<br/>b|<br/>c</p>"},
        {"the first lines", "<p align=\"right\">a[<br/>b<br/>c]<br>d</p>", kCenter,
            "<p align=\"right\">a[</p><p align=\"center\">b<br/>c]</p><p align=\"right\">d</p>"},
        {"formats at the cuts", "<p><i>a<br/>|b</i></p>", kRight,
            "<p><i>a</i></p><p align=\"right\"><i>|b</i></p>"},
        {"several paragraphs to the left",
            "<p align=\"center\">[a</p>\r\n<p>b</p><p align=\"right\">c]</p><p>d</p>", kLeft,
            "<p>[a<br/>b<br/>c]<br/>d</p>"},
        {"a break that is an end tag", "a</br>b|", kCenter, "a<p align=\"center\">b|</p>"},
        {"in a table: all of it", "<p>x<table><tr><td>a|b</td></tr></table>y</p>", kCenter,
            "<p>x</p><p align=\"center\"><table><tr><td>a|b</td></tr></table></p><p>y</p>"},
        {"next to a table, and back",
            "<p>x</p><p align=\"center\">|<table><tr><td>a</td></tr></table></p><p>y</p>", kLeft,
            "<p>x|<table><tr><td>a</td></tr></table>y</p>"},
        {"breaks of lists end no line",
            "<p>a<br/><!--select--><!--option-->b<br/>|c<!--/option--><!--/select--><br/>d</p>",
            kCenter,
            "<p>a</p><p "
            "align=\"center\"><!--select--><!--option-->b<br/>|c<!--/option--><!--/select--></"
            "p><p>d</p>"},
        {"other attributes stay, the id once",
            "<p mode=\"nowrap\" id=\"x\"><b id=\"y\">a<br/>|b<br/>c</b></p>", kCenter,
            "<p mode=\"nowrap\" id=\"x\"><b id=\"y\">a</b></p>"
            "<p align=\"center\" mode=\"nowrap\"><b>|b</b></p><p mode=\"nowrap\"><b>c</b></p>",
            lossless},
        {"paragraphs stay apart", "<p>a</p><p align=\"center\" mode=\"wrap\">b|</p><p>c</p>", kLeft,
            "<p>a</p><p mode=\"wrap\">b|</p><p>c</p>", lossless},
        {"atoms are no text, pre has no alignment",
            "<!--#timer 1-->[<!--pre-->a<!--/pre--><p>b]</p><!--#do 2-->", kRight,
            "<!--#timer 1-->[<!--pre-->a<!--/pre--><p align=\"right\">b]</p><!--#do 2-->",
            lossless},
        {"text that an element begins behind", "[<!--x-->a<!--/x--><!--y--><p>b]</p><!--/y-->",
            kCenter,
            "<p align=\"center\">[<!--x-->a<!--/x--></p>"
            "<!--y--><p align=\"center\">b]</p><!--/y-->",
            lossless},
        {"a group of fields is one line",
            "<p>a<br/><!--fieldset-->b<br/>" + table + "c|<!--/fieldset--></p>", kCenter,
            "<p>a</p><p align=\"center\"><!--fieldset-->b<br/>" + table + "c|<!--/fieldset--></p>",
            lossless},
    };
    for (auto row : cases) {
        SCOPED_TRACE(row.name);
        const bool isCaret = row.before.find('|') != std::string::npos;
        const auto marked = test::takeMarks(row.before);
        const auto aligned = alignLines(row.before, marked, row.wanted, row.rules);
        EXPECT_EQ(test::withMarks(aligned.text, aligned.marked, isCaret), row.after);
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
