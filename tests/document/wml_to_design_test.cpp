#include "document/wml_to_design.h"

#include "document/failure.h"
#include "support/conversion_session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

std::string design(std::string text)
{
    test::ConversionSession none(0);
    WmlToDesign(text, 0, none.session);
    return text;
}

TEST(WmlToDesign, TurnsTagsIntoWhatTheSurfaceShows)
{
    struct Row {
        const char* name;
        std::string wml;
        std::string wanted;
    };
    const std::vector<Row> rows{
        {"a mode is lost", "<p mode=\"nowrap\" align=\"center\">", "<p align=\"center\">"},
        {"a side's name anywhere", "<p id=\"leftside\" align=\"right\">", "<p align=\"left\">"},
        {"plain formats", "<B>a</B><Big x>b</BIG ><I>c</I>", "<b>a</b><big>b</big><i>c</i>"},
        {"a format with attributes", "<b id=\"a\">a</b>", "a</b>"},
        {"line breaks", "a<BR clear=\"all\">b</br>c", "a<br/>bc"},
        {"do without label", "<do type=\"prev\">", "<do type=\"prev\">"},
        {"do", "<do type=\"accept\" label=\"Weiter\">",
            "<!--do type=\"accept\" label=\"Weiter\"-->"},
        {"only the label keeps its case", "<DO Type=\"X\" label=\"Ab\" Name=\"Y\"></DO>",
            "<!--do type=\"x\" label=\"Ab\" name=\"y\"--><!--/do-->"},
        {"do whose type comes later", "<do label=\"A\" type=\"accept\">", ""},
        {"label in capitals", "<do type=\"x\" LABEL=\"A\">", "<do type=\"x\" LABEL=\"A\">"},
        {"go closed in itself", "<go href=\"#A\"/>", "<!--go href=\"#A\"/-->"},
        {"go", "<GO href=\"#a\"></GO>", "<!--GO href=\"#a\"--><!--/go-->"},
        {"select", "<select name=\"x\"><option value=\"A\" onpick=\"#a\">T</OPTION></select>",
            "<!--select--><!--option value=\"A\" onpick=\"#a\"-->T<!--/option--><!--/select-->"},
        {"unknown elements", "a<input name=\"x\"/>b<!-- c -->d<Timer value=\"1\"/>", "abd"},
        {"taken for a paragraph", "<prev/><postfield name=\"a\" value=\"b\"/>", "<p><p>"},
        {"taken for a link", "<anchor>x</anchor><access domain=\"d\"/>",
            "<anchor>x<access domain=\"d\"/>"},
        {"cells", "<tr><td>a</td><td align=\"right\">b</td></tr>", "<tr><td>a</td>b</td></tr>"},
        {"table", "<TABLE Columns=\"2\">", "<table columns=\"2\" border=\"1\">"},
        {"table with title", "<table title=\"Ab\" Columns=\"2\">",
            "<table title=\"Ab\" columns=\"2\" border=\"1\">"},
        {"table with border", "<table border=0>", "<table border=0>"},
        {"link", "<A Title=\"t\" HREF=\"#X\">a</A>", "<a href=\"#X\">a</a>"},
        {"links that stay", "<a href=#x><a href=\"#x>", "<a href=#x><a href=\"#x>"},
        {"a kept tag hides another", "<a <a href=\"x\">b", "<a href=\"x\">b"},
        {"the earlier row decides", "<a href=\"x\" <b>y", "<b>y"},
        {"a quoted end ends the tag", "<option value=\"a>b\">", "<!--option value=\"a-->b\">"},
        {"card", "<wml><card id=\"X\" title=\"T\"><p></p></card></wml>",
            "<!--card id=\"X\" title=\"T\"--><p></p><!--/card-->"},
        {"from the word card on", "<xcard  id=\"n\">", "<!--card  id=\"n\"-->"},
        {"id at a place without the bit",
            "<card  id=\"x\"><card title=\"a\" id=\"x\"><CARD Id=\"x\">", "<!--CARD Id=\"x\"-->"},
        {"ends at strays", "> <p> > </p> <p", "> <p> > </p> <p"},
        {"an image tag without pictures", "<img src=\"a.wbmp\"/>", "<img src=\"a.wbmp\"/>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(design(row.wml), row.wanted);
    }
}

TEST(WmlToDesign, TellsWhetherACardBecameAMarker)
{
    test::ConversionSession none(0);
    std::string text = "<card id=\"a\">";
    EXPECT_TRUE(WmlToDesign(text, 0, none.session));
    text = "<card title=\"a\" id=\"b\"></card>";
    EXPECT_FALSE(WmlToDesign(text, 0, none.session));
}

TEST(WmlToDesign, LeavesTheTextWhereItFails)
{
    test::ConversionSession none(0);
    const std::vector<std::string> open{"<p><do type=\"a\" label=\"b>", "<p><table title=\"b>",
        "<p><do type label=>", "<p><img src=\"a>", "<p><img src=\"a\" alt=\"b>"};
    for (const auto& source : open) {
        std::string text = source;
        EXPECT_THROW(WmlToDesign(text, 0, none.session), InvalidArgument) << source;
        EXPECT_EQ(text, source);
    }
}

TEST(WmlToDesign, CountsTheTextAtEachStep)
{
    const std::string marker = "<go>"; // becomes five characters longer
    EXPECT_EQ(design(marker + std::string(32758, 'x')).size(), 32767U);
    EXPECT_THROW(design(marker + std::string(32759, 'x')), Overflow);
    EXPECT_THROW(
        design(marker + std::string(32752, 'x') + "<input>"), Overflow); // shrinks too late
    EXPECT_EQ(design("<input>" + marker + std::string(32756, 'x')).size(), 32765U);
    EXPECT_THROW(design(std::string(32768, 'x')), Overflow);
}

} // namespace
} // namespace quillmere
