#include "editor/page/surface_page.h"
#include "editor/page/table_outline.h"

#include "support/page_drawing.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

struct Row {
    const char* name;
    std::string text;
    std::string page;
};

void expectPages(std::initializer_list<Row> rows)
{
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(test::drawn(readSurfacePage(row.text)), row.page) << row.text;
    }
}

TEST(SurfacePage, ShowsTextAndObjects)
{
    expectPages({
        {"nothing", "", "-:"},
        {"references", "&auml;&euml&#228;&#xE4;&#XE4 &nbsp;&lt;p&gt;", "-:äëäää_\u00A0<p>"},
        {"text behind a reference without its semicolon", "&copy2&ampamp;&notin;", "-:©2&amp;¬in;"},
        {"numbers of Windows-1252", "&#128;&#150;", "-:€–"},
        {"no references", "&;&#;&#x;&bla;&AUML; &apos &", "-:&;&#;&#x;&bla;&AUML;_&apos_&"},
        {"the apostrophe of XML", "&apos;", "-:'"},
        {"what cannot be drawn", "&#0;&#x1F600;&#99999999999;\x01&#xFFFC;&#8233;&#xD800;",
            "-:□□□□□□□"},
        {"a reference does not melt into the text around it", "&#32;&#10;", "-:  "},
        {"an end that is not the picture's", "<img> </img>", "-:@_</img>"},
        {"radio buttons",
            "<input type=radio name=\"x\"><INPUT TYPE=\"Radio\"><input type='radio'/>", "-:OOO"},
        {"an end that is a break", "a</br>b</BR >", "-:a/b/"},
        {"a tag ends at the first '>'", "<img alt=\"a>b\">", "-:@b\">"},
        {"a '<' without '>'", "a<b", "-:a<b"},
        {"comments", "a<!--x-->b<!-- <b>c</b> -->d<!---->e<!-->f", "-:abdef"},
        {"a comment without its end", "a<!--b>c<!--d", "-:ac<!--d"},
    });
}

TEST(SurfacePage, CutsTextIntoBlocks)
{
    expectPages({
        {"paragraphs", "<p>a</p><P ALIGN=center>b</P><p align=\"right\">c</p>", "P:a Pc:b Pr:c"},
        {"an end that has no start", "a</p>b<p>c</p></p>", "-:a</p>b P:c -:</p>"},
        {"empty paragraphs", "<p></p><p/><p>", "P: P: P:"},
        {"what shows nothing makes no block", "<p>a</p> <!--x--><b></b> <p>b</p> ", "P:a P:b"},
        {"a format over paragraphs", "<b><p>a</p>b<p>c</b>d</p>", "P:|b|a -:|b|b P:|b|c||d"},
    });
}

TEST(SurfacePage, ShowsWhiteSpaceThatIsNotLayout)
{
    expectPages({
        {"at the borders of a block", "<p> a </p><p> </p>", "P:_a_ P:_"},
        {"a tag parts two runs", "<p>a <b> b</b></p>", "P:a_|b|_b"},
        {"layout at the borders of a block", "<p>\r\n  a\r\n</p>\r\n<p>\n</p>", "P:a P:"},
        {"layout that a tag keeps from the border", "<p>a<b>\r\n</b></p>", "P:a|b|_"},
        {"a blank that could have been typed between tables",
            "<table><tr><td>a</table> <table><tr><td>a</table>", "-: {(-:a)} -:_ {(-:a)} -:"},
    });
}

TEST(SurfacePage, TellsHowTextLooks)
{
    expectPages({
        {"all formats", "<b>a</b><strong>b</strong><i>c</i><EM>d</EM><u>e</u><big>f</big><small>g",
            "-:|b|ab|i|cd|u|e|+1|f|-1|g"},
        {"sizes add up", "<big><big><big>a<small>b<small><small><small><small><small>c",
            "-:|+2|ab|-2|c"},
        {"a stray end", "<b>a</i>b</b></b>", "-:|b|a</i>b||</b>"},
        {"links", "<a href=x><b>a</b>b</a>c<A NAME=y>d", "-:|ba|a|a|b||c|a|d"},
        {"formats end with their cell", "<table><tr><td><b>a</td><td>b</b></td></tr></table>c",
            "-: {(-:|b|a)(-:b</b>)} -:c"},
        {"formats round a table", "<i><table><tr><th>a</i></th><td>b</td></tr></table>c</i>d",
            "-: {(-:|bi|a</i>)(-:|i|b)} -:|i|c||d"},
    });
}

TEST(SurfacePage, ShowsTablesThatFit)
{
    const std::string cell = "<tr><td>a</td></tr>";
    expectPages({
        {"rows and columns",
            "<table border=1><tr><td>a</td><td>b</td></tr><tr><td>c</td></tr></table>",
            "-: {#(-:a)(-:b);x2(-:c)} -:"},
        {"neighbours",
            "<p>a</p><table>" + cell + "</table>\r\n<table border=0>" + cell + "</table>b",
            "P:a {(-:a)} -: {(-:a)} -:b"},
        {"missing ends of cells and rows", "<table><tr><td>a<td>b<tr><td>c</table>",
            "-: {(-:a)(-:b);x2(-:c)} -:"},
        {"missing ends one in the other", "<table><tr><td>a<table>" + cell + "b</td></tr>c",
            "-: {(-:a {(-:a)} -:b)} -:c"},
        {"no place would be behind the last cell", "<table><tr><td>a", "-:<table><tr><td>a"},
        {"rows without cells and groups of rows",
            "<table><colgroup><col></colgroup><tbody><tr></tr>" + cell + "<tr></tbody></table>",
            "-: {(-:a)} -:"},
        {"a cell outside of a row", "<table><td>a</td></table>", "-:<table><td>a</td></table>"},
        {"a table in one that does not fit",
            "<table><tr>x<td><table>" + cell + "</table></td></tr></table>",
            "-:<table><tr>x<td> {(-:a)} -:</td></tr></table>"},
        {"nested and short",
            "<table><tr><td>a</td><td><table><tr><td>b<td>c<tr><td>d</table></td>"
            "</tr><tr><td>e</td></tr></table>",
            "-: {(-:a)(-: {(-:b)(-:c);x2(-:d)} -:);x2(-:e)} -:"},
        {"paragraphs end with their cell", "<p><table><tr><td><p>a</td></tr></table>b</p>",
            "P: {(P:a)} P:b"},
    });
}

TEST(SurfacePage, NestsTablesToALimit)
{
    std::string text = "x";
    for (std::size_t i = 0; i <= kMaxTableDepth; ++i)
        text = std::string("<table><tr><td>").append(text).append("</td></tr></table>");
    const auto page = readSurfacePage(text);
    EXPECT_EQ(page.tables.size(), kMaxTableDepth);
    EXPECT_EQ(page.cells.back().table, kMaxTableDepth - 1);
    const auto& innermost = page.blocks[page.cells.back().firstBlock];
    EXPECT_EQ(innermost.content.in(text), "<table><tr><td>x</td></tr></table>");
}

TEST(SurfacePage, HidesTheFrame)
{
    const std::string card = "<!--card id=\"a\"-->";
    const std::string jump = "<!--do type=\"accept\"--><!--go href=\"#b\"/--><!--/do-->";
    expectPages({
        {"as areas are written",
            card + "\r\n" + jump
                + "\r\n<HTML>\r\n<HEAD>\r\n<TITLE>t</TITLE></HEAD>\r\n<BODY "
                  "STYLE=\"a\">\r\n<p>x</p>"
                  "\r\n</BODY>\r\n</HTML>\r\n",
            "P:x"},
        {"the last end counts", "<body>a</body>b</BODY></html>", "-:a</body>b"},
        {"HTML and HEAD alone", "<!DOCTYPE html><html><head><title>t</title></head>a</html>b",
            "-:a"},
        {"an end marker at the end", card + "a<!--/card-->\r\n", "-:a"},
        {"what is no frame", "a<html>b<!DOCTYPE c>", "-:a<html>b<!DOCTYPE c>"},
        {"a do block without its end", "<!--do--><head>a", "-:<head>a"},
    });
}

TEST(SurfacePage, TellsWhatBelongsTogether)
{
    const auto expect = [](const char* text, const char* elements) {
        EXPECT_EQ(test::drawnElements(readSurfacePage(text)), elements) << text;
    };
    expect("<!--card--><!--do--><!--go/--><!--/do--><BODY>a</BODY><!--/card-->",
        "Marker[<!--card-->..<!--/card-->] Marker[<!--do-->..<!--/do-->]");
    expect("<p>a<b>b<p>c</b></p><a x>d",
        "Paragraph[<p>..] Format[<b>..</b>] Paragraph[<p>..</p>] "
        "Link[<a x>..]");
    expect("<!--SELECT--><!--option a--><input><!--/Option--><!--option b--><!--/select-->",
        "Select[<!--SELECT-->..<!--/select-->] Option[<!--option a-->..<!--/Option-->]");
    expect("<!--x--><!--y 1--><!--X a--><!--/x--><!--/Y--><!-- z --><!--/z--><!--/x--><!--/x-->",
        "Marker[<!--x-->..<!--/x-->] Marker[<!--y 1-->..<!--/Y-->] Marker[<!--X a-->..<!--/x-->]");
    expect("<table><tr><td>a<tr><th>b</th></table>",
        "Table[<table>..</table>] Row[<tr>..] Cell[<td>..] Row[<tr>..] Cell[<th>..</th>]");
}

TEST(SurfacePage, FindsAttributes)
{
    const char* const tag
        = "<IMG Src = \"a b.bmp\" vspace=3 ALT='\"' ismap align=\"left\"align=x y=\"z>";
    const std::pair<const char*, const char*> values[] = {{"src", "a b.bmp"}, {"vspace", "3"},
        {"alt", "\""}, {"ismap", ""}, {"align", "left"}, {"y", "z"}, {"space", ""}, {"img", ""}};
    for (const auto& [name, value] : values)
        EXPECT_EQ(attributeOf(tag, name), value) << name;
    EXPECT_EQ(attributeOf("<p", "p"), "");
    EXPECT_EQ(attributeOf("<p align=center>", "align"), "center");
}

} // namespace
} // namespace quillmere
