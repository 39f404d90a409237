// The schema by which the tests judge written decks: each rule has a card that keeps it and cards
// that break it.

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

struct Rule {
    const char* name;
    std::string valid; ///< what the deck holds
    std::vector<std::string> invalid;
};

const Rule kRules[] = {
    {"a deck has cards, and ahead of them a head and a template",
        "<head><access domain=\"a.de\" path=\"/x\"/><meta name=\"n\" content=\"c\" scheme=\"s\"/>"
        "<meta http-equiv=\"h\" content=\"c\" forua=\"true\"/></head><template><do type=\"prev\">"
        "<prev/></do><onevent type=\"ontimer\"><noop/></onevent></template><card/><card/>",
        {"", "<head><access/></head>", "<card/><head><access/></head>", "<head/><card/>",
            "<template/><head><access/></head><card/>", "<p>a</p>", "<card/>text",
            "<head><meta name=\"n\"/></head><card/>", "<template><p/></template><card/>",
            "<head><meta content=\"c\" forua=\"ja\"/></head><card/>"}},
    {"a card has events, a timer, then do and p",
        "<card id=\"a\" class=\"c\" title=\"$(t)\" newcontext=\"true\" ordered=\"false\" "
        "xml:lang=\"de\" onenterforward=\"#b\" onenterbackward=\"#b\" ontimer=\"#b\"><onevent "
        "type=\"onenterforward\"><go href=\"#b\"/></onevent><timer name=\"t\" value=\"50\"/>"
        "<do type=\"accept\"><go href=\"#b\"/></do><p>a</p><do type=\"x\"><noop/></do></card>",
        {"<card>text</card>", paragraph("a<br> </br>"), "<card><b>a</b></card>",
            "<card><p/><timer value=\"1\"/></card>", "<card><timer/></card>",
            "<card><timer value=\"1\"/><onevent type=\"a\"><noop/>"
            "</onevent></card>",
            "<card newcontext=\"yes\"/>", "<card name=\"a\"/>",
            "<card><table columns=\"1\"><tr>"
            "<td/></tr></table></card>"}},
    {"a paragraph has its alignment and its way to wrap",
        "<card><p align=\"left\" mode=\"wrap\"/><p align=\"center\" mode=\"nowrap\" class=\"c\"/>"
        "<p align=\"right\" xml:lang=\"de\">a&nbsp;b&shy;c<do type=\"a\"><noop/></do></p></card>",
        {"<card><p align=\"Right\"/></card>", "<card><p align=\"\"/></card>",
            "<card><p mode=\"pre\"/></card>", paragraph("<p>a</p>"),
            "<card><p xml:space=\"preserve\"/></card>"}},
    {"formats hold text, pictures, links and tables",
        paragraph("<em>a<strong>b<b>c<i><u><big><small id=\"s\">d</small></big></u></i></b>"
                  "</strong></em><b><a href=\"#a\">x</a><br/><table columns=\"1\"><tr><td>a</td>"
                  "</tr></table></b>"),
        {paragraph("<b><p>a</p></b>"), paragraph("<b><select><option/></select></b>"),
            paragraph("<b><input name=\"a\"/></b>"), paragraph("<b align=\"left\">a</b>"),
            paragraph("<font>a</font>")}},
    {"a list has groups and options, and these text and events",
        paragraph("<select title=\"t\" name=\"n\" value=\"1\" iname=\"i\" ivalue=\"1\" "
                  "multiple=\"true\" tabindex=\"1\"><optgroup title=\"g\"><option/></optgroup>"
                  "<option value=\"v\" title=\"t\" onpick=\"#a\">a<onevent type=\"onpick\"><noop/>"
                  "</onevent></option></select>"),
        {paragraph("<select/>"), paragraph("<select>a<option/></select>"),
            paragraph("<select><option><b>a</b></option></select>"),
            paragraph("<select><option>a<br/></option></select>"),
            paragraph("<select><optgroup/></select>"), paragraph("<option>a</option>"),
            paragraph("<select name=\"a b\"><option/></select>")}},
    {"a picture has a source and a text",
        paragraph("<img src=\"a.wbmp\" alt=\"\" localsrc=\"l\" vspace=\"0\" hspace=\"1%\" "
                  "align=\"middle\" height=\"10\" width=\"50%\"/>"),
        {paragraph("<img src=\"a.wbmp\"/>"), paragraph("<img alt=\"a\"/>"),
            paragraph("<img src=\"a\" alt=\"a\" align=\"left\"/>"),
            paragraph("<img src=\"a\" alt=\"a\" height=\"10px\"/>"),
            paragraph("<img src=\"a\" alt=\"a\">\n</img>"),
            "<card><img src=\"a\" alt=\"a\"/></card>"}},
    {"a link holds text, breaks and pictures",
        paragraph("<a href=\"#a\" title=\"t\">a<br/><img src=\"a\" alt=\"\"/></a>"
                  "<anchor title=\"t\">a<br/><img src=\"a\" alt=\"\"/><go href=\"#a\"/></anchor>"),
        {paragraph("<a>a</a>"), paragraph("<a href=\"#a\"><b>a</b></a>"),
            paragraph("<a href=\"#a\"><a href=\"#b\">a</a></a>"),
            paragraph("<anchor>a<noop/></anchor>"), "<card><a href=\"#a\">a</a></card>"}},
    {"a table has columns, rows and cells",
        paragraph("<table title=\"t\" align=\"LCR\" columns=\"2\"><tr class=\"c\"><td id=\"a\">a"
                  "<b>b</b><br/><img src=\"a\" alt=\"\"/><a href=\"#a\">c</a></td><td/></tr>"
                  "</table>"),
        {paragraph("<table><tr><td/></tr></table>"), paragraph("<table columns=\"1\"/>"),
            paragraph("<table columns=\"a\"><tr><td/></tr></table>"),
            paragraph("<table columns=\"1\"><tr/></table>"),
            paragraph("<table columns=\"1\"><td/></table>"),
            paragraph("<table columns=\"1\" border=\"1\"><tr><td/></tr></table>"),
            paragraph("<table columns=\"1\"><tr><td><table columns=\"1\"><tr><td/></tr></table>"
                      "</td></tr></table>"),
            paragraph("<table columns=\"1\"><tr><td><p>a</p></td></tr></table>")}},
};

TEST(WmlSchema, TellsWhatIsValidFromWhatIsNot)
{
    for (const auto& rule : kRules) {
        SCOPED_TRACE(rule.name);
        EXPECT_EQ(wmlFaults(deckWith(rule.valid)), "");
        for (const auto& invalid : rule.invalid)
            EXPECT_NE(wmlFaults(deckWith(invalid)), "") << invalid;
    }
}

TEST(WmlSchema, FaultsNameTheirLineAndCoverTheWholeDocument)
{
    EXPECT_NE(wmlFaults(deckWith("\n<card>\n<p/>\n<x/></card>")).find("-:6: element x"),
        std::string::npos);
    EXPECT_NE(wmlFaults(deckWith("<card><p>a</card>")).find("mismatch"), std::string::npos);
    EXPECT_NE(wmlFaults(deckWith("<card><p>&auml;</p></card>")), "");
    EXPECT_NE(wmlFaults("<wml><card/></wml>").find("document type"), std::string::npos);
}

} // namespace
} // namespace quillmere::test
