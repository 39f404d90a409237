#include "editor/page/pasted_elements.h"

#include "document/text/failure.h"
#include "document/text/limits.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr std::string_view kOption = "<!--option--><input type=\"radio\">Neu<!--/option-->";

/// Pastes at the bar of `design`.
std::string pasted(std::string design, std::string_view clip)
{
    const auto bar = design.find('|');
    int position = 0;
    if (bar != std::string::npos) {
        design.erase(bar, 1);
        position = static_cast<int>(bar) + 1;
    }
    const auto kind = elementIn(clip);
    if (!kind) return "no element";
    const auto paste = pasteElement(design, position, clip, *kind);
    auto told = paste.design;
    return told.insert(paste.end, 1, '|');
}

TEST(PasteElement, PutsElementsWhereNothingBreaks)
{
    const std::string rows[][4] = {
        {"a link at the caret", "<!--card id=\"a\"--><p>ein|s</p>", "<a href=\"#b\">x</a>",
            "<!--card id=\"a\"--><p>ein<a href=\"#b\">x</a>|s</p>"},
        {"behind the link that the caret is in", "<!--card--><p><a href=\"#b\">z|u</a>!</p>",
            "<A HREF=\"#c\">x</A>",
            "<!--card--><p><a href=\"#b\">zu</a><A HREF=\"#c\">x</A>|!</p>"},
        {"behind the table that the caret is in",
            "<!--card--><p><table><tr><td>a|b</td></tr></table>c</p>",
            "<table><tr><td>1</td></tr></table>",
            "<!--card--><p><table><tr><td>ab</td></tr></table>"
            "<table><tr><td>1</td></tr></table>|c</p>"},
        {"never ahead of the card's marker", "|<!--card id=\"a\"--><p>x</p>", "<img src=\"a\">",
            "<!--card id=\"a\"--><img src=\"a\">|<p>x</p>"},
    };
    for (const auto& [name, design, clip, wanted] : rows)
        EXPECT_EQ(pasted(design, clip), wanted) << name;
}

TEST(PasteElement, PutsOptionsIntoTheOneListOfTheArea)
{
    const std::string one = "<!--option-->A<!--/option-->", two = "<!--option-->B<!--/option-->";
    const std::string clip(kOption), placed = clip + "|";
    const std::string rows[][3] = {
        {"the first gets a list", "<!--card--><p>x|y</p>",
            "<!--card--><p>x<!--select-->" + clip + "<!--/select--><br/>|y</p>"},
        {"ahead of the list", "<!--card-->|<p><!--select-->" + one + "<!--/select--></p>",
            "<!--card--><p><!--select-->" + placed + one + "<!--/select--></p>"},
        {"behind the list", "<!--card--><!--select-->" + one + "<!--/select--><p>|x</p>",
            "<!--card--><!--select-->" + one + placed + "<!--/select--><p>x</p>"},
        {"behind the option at the caret",
            "<!--card--><!--select-->|" + one + two + "<!--/select-->",
            "<!--card--><!--select-->" + one + placed + two + "<!--/select-->"},
        {"at the end of the list", "<!--card--><!--select-->" + one + "|<!--/select-->",
            "<!--card--><!--select-->" + one + placed + "<!--/select-->"},
    };
    for (const auto& [name, design, wanted] : rows)
        EXPECT_EQ(pasted(design, clip), wanted) << name;
}

TEST(PasteElement, TellsElementsFromOtherText)
{
    EXPECT_EQ(elementIn("<!--option--><a href=\"#x\">y</a><!--/option-->"), ElementKind::Option);
    EXPECT_EQ(elementIn("<!--option-->"), std::nullopt);
    EXPECT_EQ(elementIn("<table><td><img src=\"a\"></td></table>"), ElementKind::Table);
    EXPECT_EQ(elementIn("x <IMG SRC=\"a\">"), ElementKind::Image);
    EXPECT_EQ(elementIn("a < b, a > b"), std::nullopt);
    EXPECT_EQ(pictureSource("src=\"no\"<img alt=\"b\" src=\"/tmp/Bmp0.bmp\">"), "/tmp/Bmp0.bmp");
    EXPECT_EQ(pictureSource("<img src=\"cut"), "");
    EXPECT_EQ(pictureSource("<img alt=\"x\">"), "");
}

TEST(PasteElement, RefusesWhatPositionsCannotAddress)
{
    const std::string design = "<!--card-->" + std::string(kMaxTextLength - 20, 'x');
    EXPECT_THROW((void)pasteElement(design, 12, kOption, ElementKind::Option), Overflow);
    EXPECT_THROW((void)pasteElement(design + design, 1, kOption, ElementKind::Option), Overflow);
}

TEST(ElementMarkup, ReachesToTheEndOfTheElement)
{
    const std::string design = "<p><a href=\"#x\">y</a><img src=\"a\">z<table><tr>";
    EXPECT_EQ(elementMarkup(design, 4, tagsOf(ElementKind::Link)), "<a href=\"#x\">y</a>");
    EXPECT_EQ(elementMarkup(design, 22, tagsOf(ElementKind::Image)), "<img src=\"a\">");
    EXPECT_EQ(elementMarkup(design, 36, tagsOf(ElementKind::Table)), "<table><tr>");
    EXPECT_EQ(elementMarkup(design, 999, tagsOf(ElementKind::Link)), "");
}

} // namespace
} // namespace quillmere
