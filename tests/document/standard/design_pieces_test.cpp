#include "document/standard/design_pieces.h"

#include "document/standard/shown_text.h"

#include <gtest/gtest.h>

#include <array>

namespace quillmere {
namespace {

TEST(ShownText, SpellsWhatWindows1252HasAndKeepsTheRest)
{
    const std::array<std::array<std::string, 2>, 13> rows{{
        {"K&#228;se", "K\xE4se"},
        {"K&#xE4;se&#8364;", "K\xE4se\x80"},
        {"&#x2192;&#8594;", "&#8594;&#8594;"},
        {"a&amp;b&#38;&lt;&#x3c;&gt;>", "a&amp;b&amp;&lt;&lt;&gt;&gt;"},
        {"&quot;it&apos;s&quot;", "\"it's\""},
        {"\xA0&nbsp;&#160;", "&nbsp;&nbsp;&nbsp;"},
        {"\xAD&shy;&#173;", "&shy;&shy;&shy;"},
        {"&#10;&#32;&#9;", "&#10;&#32;&#9;"}, // no white space comes about
        {"&firma;", "&firma;"},
        {"R&D", "R&D"},
        {"&#150;&#0;", "&#150;&#0;"},
        {"$(name:e)$$", "$(name:e)$$"},
        {"&;&#;&#x;&", "&;&#;&#x;&"},
    }};
    for (const auto& [source, shown] : rows)
        EXPECT_EQ(shownText(source), shown) << source;
    EXPECT_EQ(shownValue("a\r\n\tb \"c\" 'd' > &gt;"), "a   b &quot;c&quot; 'd' &gt; &gt;");
    EXPECT_EQ(plainValue("a&amp;b &quot;&#8594;&lt;"), "a&b \"&#8594;<");
    EXPECT_EQ(writtenText("1<2&nbsp;&shy;", false), "1&lt;2&#160;&#173;");
    EXPECT_EQ(writtenValue("\"it's\"&nbsp;", '\'', true), "\"it&apos;s\"&nbsp;");
}

/// Each piece with a letter for its kind, a line each.
std::string listed(const std::string& design)
{
    std::string list;
    for (const auto& piece : readDesignPieces(design))
        list.append(1, "w_<>.@"[static_cast<std::size_t>(piece.kind)])
            .append(piece.text)
            .append("\n");
    return list;
}

TEST(ReadDesignPieces, TakesWhatIsOfTheDeckAndLeavesWhatIsOfTheSurface)
{
    EXPECT_EQ(listed("<!--card id=\"a\"--><HTML><HEAD><META x>y</HEAD><BODY STYLE=\"b\">"
                     "<p align=\"left\">Ein&nbsp;<b>Wort</b>  <br/><br>x<IMG src=a.bmp></img>"
                     "<img src=\"b\"></p></BODY></HTML>"),
        "<<!--card id=\"a\"-->\n<<p align=\"left\">\nwEin&nbsp;\n<<b>\nwWort\n></b>\n_  \n"
        ".<br/>\n.<br>\nwx\n.<IMG src=a.bmp></img>\n.<img src=\"b\">\n></p>\n");
    EXPECT_EQ(listed("<!--select name=\"x\"--><!--option onpick=\"#a\"--><input type=radio "
                     "name=\"TempName1\">A<!--/option--><!--/select--></br>"),
        "<<!--select name=\"x\"-->\n<<!--option onpick=\"#a\"-->\nwA\n><!--/option-->\n"
        "><!--/select-->\n");
    EXPECT_EQ(listed("<!--#timer &lt;timer value=\"1\"/&gt;--><!--go href=\"#a\"/-->"
                     "<!-- x --><!--/card--><!--card id=\"b\"-->"
                     "</table><!--Test--> <!--Test2--></br>"),
        "@<!--#timer &lt;timer value=\"1\"/&gt;-->\n.<!--go href=\"#a\"/-->\n<<!--card "
        "id=\"b\"-->\n"
        "></table>\n");
    EXPECT_EQ(
        listed("a<b 1<2 x < y <font><i"), "wa\nw<b\n_ \nw1<2\n_ \nwx\n_ \nw<\n_ \nwy\n_ \nw<i\n");
}

} // namespace
} // namespace quillmere
