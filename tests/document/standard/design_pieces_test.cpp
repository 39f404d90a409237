#include "document/standard/design_pieces.h"

#include "document/standard/shown_text.h"
#include "support/row_file.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(ShownText, SpellsWhatWindows1252HasAndKeepsTheRest)
{
    for (const auto& row : test::rowsOf("shown_texts.txt"))
        EXPECT_EQ(shownText(row.at(0)), row.at(1)) << row.at(0);
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
