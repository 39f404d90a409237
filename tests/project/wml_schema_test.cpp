// The schema by which the tests judge written decks: a deck that keeps its rules, and decks that
// break one each.

#include "support/wml_validity.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::test {
namespace {

std::string deckWith(const std::string& content)
{
    return "<?xml version=\"1.0\"?>\n<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
           "\"http://www.wapforum.org/DTD/wml_1.1.xml\">\n<wml xml:lang=\"de\" id=\"wml\">"
        + content + "</wml>\n";
}

std::string paragraph(const std::string& content)
{
    return "<card><p>" + content + "</p></card>";
}

const std::string kValid
    = "<head><access domain=\"a.de\"/><meta name=\"n\" content=\"c\"/></head><template><do "
      "type=\"prev\"><prev/></do></template><card id=\"a\" title=\"$(t)\" newcontext=\"true\">"
      "<onevent type=\"onenterforward\"><go href=\"#b\"/></onevent><timer value=\"50\"/><do "
      "type=\"accept\" label=\"Los\"><refresh><setvar name=\"a\" value=\"b\"/></refresh></do>"
      "<p align=\"right\" "
      "mode=\"nowrap\">a&nbsp;b&shy;c<em><b><i><u><big><small>d</small></big></u>"
      "</i></b></em><b><a href=\"#a\">x<br/><img src=\"a\" alt=\"\" align=\"middle\" height=\"10\" "
      "hspace=\"1%\"/></a></b><anchor>a<go href=\"a.wml?x=$(x)\" method=\"post\"><postfield "
      "name=\"a\" value=\"b\"/></go></anchor></p><p><select name=\"n\" multiple=\"true\"><optgroup>"
      "<option/></optgroup><option value=\"v\" onpick=\"#a\">a</option></select><fieldset><input "
      "name=\"n\" type=\"password\" size=\"4\"/></fieldset><table align=\"LC\" columns=\"2\"><tr>"
      "<td>a<b>b</b></td><td/></tr></table></p></card><card/>";

const std::vector<std::string> kInvalid{"", "<head><access/></head>", "<head/><card/>",
    "<card/><head><access/></head>", "<p>a</p>", "<card/>text", "<card><b>a</b></card>",
    "<card><p/><timer value=\"1\"/></card>", "<card newcontext=\"yes\"/>", "<card name=\"a\"/>",
    "<card id=\"a\"/><card id=\"a\"/>", "<card id=\"1a\"/>", "<card><do><noop/></do></card>",
    "<card><do type=\"a\"><noop/><prev/></do></card>", "<card><p align=\"Right\"/></card>",
    "<card><do type=\"a\"><go/></do></card>", "<card><img src=\"a\" alt=\"a\"/></card>",
    paragraph("a<br> </br>"), paragraph("<p>a</p>"), paragraph("<b><p>a</p></b>"),
    paragraph("<b><select><option/></select></b>"), paragraph("<font>a</font>"),
    paragraph("<b align=\"left\">a</b>"), paragraph("<select/>"), paragraph("<option>a</option>"),
    paragraph("<select><option><b>a</b></option></select>"), paragraph("<input/>"),
    paragraph("<fieldset><p/></fieldset>"), paragraph("<img src=\"a.wbmp\"/>"),
    paragraph("<img src=\"a\" alt=\"a\" height=\"10px\"/>"), paragraph("<a>a</a>"),
    paragraph("<img src=\"a\" alt=\"a\">\n</img>"), paragraph("<anchor>a<noop/></anchor>"),
    paragraph("<a href=\"#a\"><b>a</b></a>"), paragraph("<table><tr><td/></tr></table>"),
    paragraph("<table columns=\"1\"/>"), paragraph("<table columns=\"1\"><td/></table>"),
    paragraph("<table columns=\"1\" border=\"1\"><tr><td/></tr></table>"),
    paragraph("<table columns=\"1\"><tr><td><p>a</p></td></tr></table>")};

TEST(WmlSchema, TellsWhatIsValidFromWhatIsNot)
{
    EXPECT_EQ(wmlFaults(deckWith(kValid)), "");
    for (const auto& invalid : kInvalid)
        EXPECT_NE(wmlFaults(deckWith(invalid)), "") << invalid;
}

} // namespace
} // namespace quillmere::test
