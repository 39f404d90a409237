#include "editor/elements/image_edit.h"
#include "editor/elements/link_edit.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

std::string withCaret(ElementEdit edit)
{
    return edit.text.insert(static_cast<std::size_t>(edit.position), "|");
}

const OutputRules kLossless(true);

/// <N> and <O> become the new link and an old one.
std::string withLinks(std::string text)
{
    const std::string links[][2]
        = {{"<N>", "<a href=\"#n\">n</a>"}, {"<O>", "<a href=\"#\">xy</a>"}};
    for (const auto& [name, link] : links)
        if (const auto at = text.find(name); at != std::string::npos)
            text.replace(at, name.size(), link);
    return text;
}

TEST(SetLink, EndsTheLineOnlyWhereItIsAlone)
{
    // each with its caret; without loss in the last one
    std::string cases[][3] = {
        {"<p>|</p>", "<p><N> <br/> |</p>", "<p><N>|</p>"},
        {"<p>a<br/> |</p>", "<p>a<br/> <N> <br/> |</p>", "<p>a<br/> <N>|</p>"},
        {"<p>|<br/>b</p>", "<p><N> |<br/>b</p>", "<p><N>|<br/>b</p>"},
        {"<p>a&a|mp;b</p>", "<p>a&amp;<N> |b</p>", "<p>a&amp;<N>|b</p>"},
        {"<p><O>|</p>", "<p><O><N> |</p>", "<p><O><br/><N>|</p>"},
        {"<p>a<br/><O>|<br/>b</p>", "<p>a<br/><O><N> |<br/>b</p>",
            "<p>a<br/><O><br/><N>|<br/>b</p>"},
        {"<p>a <O>|</p>", "<p>a <O><N> |</p>", "<p>a <O><N>|</p>"},
    };
    for (auto& [before, after, withoutLoss] : cases) {
        SCOPED_TRACE(before);
        for (auto* text : {&before, &after, &withoutLoss})
            *text = withLinks(*text);
        const auto caret = before.find('|');
        before.erase(caret, 1);
        const auto place = static_cast<int>(caret);
        EXPECT_EQ(withCaret(SetLink(before, place, {"n", "#n"})), after);
        EXPECT_EQ(withCaret(SetLink(before, place, {"n", "#n"}, kLossless)), withoutLoss);
    }
}

TEST(LinkEdits, KeepWhatStandsAround)
{
    const std::string bold = "<p>a <b>b <i>cd</i></b></p>";
    EXPECT_EQ(linkInPlace(bold, {8, 20}, {"b cd", "#"}), "<b><a href=\"#\">b cd</a> </b>");
    EXPECT_EQ(linkInPlace(bold, {13, 15}, {"cd", "#"}, kLossless), "<i><a href=\"#\">cd</a></i>");
    EXPECT_EQ(linkInPlace(bold, {13, 14}, {"c", "#"}, kLossless), "<a href=\"#\">c</a>");
    const std::string text = "<p>ab <i>c</i></p><p>d<br/>e<a href=\"#\">f</a></p>";
    EXPECT_TRUE(canBecomeLink(text, {3, 10}));
    EXPECT_FALSE(canBecomeLink(text, {3, 22})); // two paragraphs
    EXPECT_FALSE(canBecomeLink(text, {21, 28})); // a line break
    EXPECT_FALSE(canBecomeLink(text, {27, 41})); // a link
    const std::string old = "x<A HREF=#a title=t><b>y</b></A>z<a href=\"#\">2</a>";
    EXPECT_EQ(
        withCaret(ReplaceLink(old, 1, {"n", "#n"})), "x<a href=\"#n\">n</a> |z<a href=\"#\">2</a>");
    EXPECT_EQ(withCaret(ReplaceLink(old, 1, {"n", "#n"}, kLossless)),
        "x<a href=\"#n\" title=t>n</a>|z<a href=\"#\">2</a>");
    EXPECT_EQ(ReplaceLink("<a href=\"#\"><b>y</b> &uuml;</a>", 1, {"y \xFC", "#n"}, kLossless).text,
        "<a href=\"#n\"><b>y</b> &uuml;</a>");
    EXPECT_EQ(withCaret(DeleteLink(old, 1)), "x|z<a href=\"#\">2</a>");
    EXPECT_EQ(withCaret(DeleteLink("x<a href=#a>y", 1)), "x|y");
    EXPECT_EQ(DeleteLink("x", 1).text, "x");
}

TEST(GetLink, ReadsAllSpellings)
{
    const char* const rows[][3]
        = {{"<a href=\"a b.wml\">x<p>y</a>", "a b.wml", "xy"}, {"<A HREF=#a>x</A>", "#a", "x"}};
    for (const auto& [text, target, caption] : rows) {
        const auto link = GetLink(text, 0).value_or(LinkSettings{});
        EXPECT_EQ(link.target, target);
        EXPECT_EQ(link.caption, caption);
    }
}

TEST(ImageEdits, WriteBothForms)
{
    ImageSettings image{"/t/Bmp0.bmp", "Haus", false, "middle", "10", "20"};
    EXPECT_EQ(withCaret(SetImage("<p>xy</p>", 4, image)),
        "<p>x<img src=\"/t/Bmp0.bmp\" alt=\"Haus\">|y</p>");
    image.hasLayout = true;
    const std::string full = "<img src=\"/t/Bmp0.bmp\" alt=\"Haus\" align=\"middle\" "
                             "style=\"height: 10px; width: 20px\">";
    EXPECT_EQ(withCaret(SetImage("<p>xy</p>", 4, image)), "<p>x" + full + "|y</p>");
    const std::string old = "x<IMG src=a.bmp></img>y";
    EXPECT_EQ(withCaret(ReplaceImage(old, 1, image)), "x" + full + "|y");
    EXPECT_EQ(ReplaceImage("<img id=i src=a height=\"3\" localsrc=\"l\" />", 1,
                  {"b", "c", false, "top", "", ""}, kLossless)
                  .text,
        "<img src=\"b\" alt=\"c\" id=i localsrc=\"l\">");
    const auto changed = [](const std::string& attributes, const ImageSettings& wanted) {
        return ReplaceImage("<img src=\"a\" alt=\"x\"" + attributes + ">", 1, wanted, kLossless)
            .text;
    };
    EXPECT_EQ(changed(" align=\"middle\"", {"a", "y", false, "middle", "", ""}),
        "<img src=\"a\" alt=\"y\" align=\"middle\">");
    EXPECT_EQ(changed(" style=\"height: 3px\"", {"a", "y", true, "top", "3", "4"}),
        "<img src=\"a\" alt=\"y\" style=\"height: 3px; width: 4px\">");
    EXPECT_EQ(withCaret(DeleteImage(old, 1)), "x|y");
    EXPECT_EQ(FindImage(old), 1);
    EXPECT_EQ(FindImage(old, 3), std::nullopt);

    const auto read = GetImage("x" + full, 1);
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->hasLayout);
    EXPECT_EQ(read->align, "middle");
    EXPECT_EQ(read->height + "x" + read->width, "10x20");
}

TEST(ImageEdits, ReadOlderFiles)
{
    const std::string old
        = "<IMG style=\"HEIGHT: 20px; WIDTH: 30px\" alt=x src=\"file:///t/Bmp1.bmp\" align=bottom>";
    const auto image = GetImage(old, 0);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->source, "/t/Bmp1.bmp");
    EXPECT_EQ(image->caption, "x");
    EXPECT_EQ(image->height + "x" + image->width, "20x30");
    EXPECT_EQ(image->align, "bottom");
    const auto older = löschen_GetImage("<img src=\"a\" height=\"5\" width=6 align=center>", 0);
    ASSERT_TRUE(older);
    EXPECT_EQ(older->height + "x" + older->width, "5x6");
    EXPECT_EQ(older->align, "middle");
    EXPECT_FALSE(GetImage("<p>", 0));
}

} // namespace
} // namespace quillmere
