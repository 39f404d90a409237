// Each row is a fault in itself: what stands there, what is written, and the rules that say so.

#include "document/wml/wml_mends.h"

#include "document/wml/repaired_file.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere {
namespace {

struct MendRow {
    const char* before;
    const char* after;
    const char* rules;
};

// Within <wml><card><p>, unless a deck is told.
constexpr MendRow kInText[] = {
    {"A & B &amp; &x", "A &amp; B &amp; &amp;x", "bare-ampersand bare-ampersand"},
    {"a <3 b<b", "a &lt;3 b<b></b>", "bare-less broken-tag missing-end"},
    {"&#228; &#xE4; &#0; &#x;", "&#228; &#xE4; &amp;#0; &amp;#x;", "bare-ampersand bare-ampersand"},
    {"&nbsp;&auml;&x;", "&#160;&#228;&amp;x;", "unknown-entity"},
    {"a\x01"
     "b\x0C"
     "c\xFC",
        "ab c&#252;", "bad-character"},
    {"<a href=x.wml id='i'>y</a>", "<a href=\"x.wml\" id='i'>y</a>", "unquoted-value"},
    {"<img src='a'alt=\"b\"/>", "<img src='a' alt=\"b\"/>", "broken-tag"},
    {"<a\xC2\xA0href='x'\xC2\xA0>y</a><b\xA0id='i'>z</b>", "<a href='x'>y</a><b id='i'>z</b>",
        "broken-tag broken-tag broken-tag"},
    {"<a href=\xE2\x80\x9Cx.wml\xE2\x80\x9D title=\x84zu \xFCns\x93>y</a>",
        "<a href=\"x.wml\" title=\"zu &#252;ns\">y</a>",
        "unquoted-value bad-character unquoted-value"},
    {"<a href=\"<%= x[\"k\"] %>\">y</a>", "<a href=\"&lt;%= x[&quot;k&quot;] %>\">y</a>",
        "bare-less"},
    {"<a href='<?x?>&y'>z</a>", "<a href='&lt;?x?>&amp;y'>z</a>", "bare-ampersand bare-less"},
    {"<b x='1' x='2' X='3'>y</b>", "<b x='1' X='3'>y</b>", "doubled-attribute"},
    {"<select multiple><option selected>y</option></select>",
        "<select multiple=\"true\"><option selected=\"selected\">y</option></select>",
        "missing-value missing-value"},
    {"<b alt title=\"1<2\">y</b><b alt id='<%= \"x>\" %>'>z</b>",
        "<b alt=\"alt\" title=\"1&lt;2\">y</b><b alt=\"alt\" id='&lt;%= \"x>\" %>'>z</b>",
        "missing-value bare-less missing-value bare-less"},
    {"<A HREF='#X' Title='&'>y</A>", "<a href='#X' title='&amp;'>y</a>",
        "wrong-case wrong-case wrong-case bare-ampersand wrong-case"},
    {"<Neu Teil='1'>y</Neu>", "<Neu Teil='1'>y</Neu>", ""},
    {"<b id='i'>x</b><i id='i'>y</i><u id='i2'>z</u>",
        "<b id='i'>x</b><i id='i3'>y</i><u id='i2'>z</u>", "doubled-id"},
    {"<!-- a -- b ---><!---->", "<!-- a - - b - --><!---->", "bad-comment"},
    {"<!WICHTIG><? x ?><?y(1)?>", "<!--WICHTIG--><!-- x --><?y (1)?>",
        "bad-comment bad-declaration bad-declaration"},
    {"<![CDATA[a & b]]>]]>", "<![CDATA[a & b]]>]]&gt;", "bare-less"},
    {"<![CDATA[\xFC & b]]>", "&#252; &amp; b", "bad-character"},
    {"x</b> y</>z", "x yz", "stray-end stray-end"},
    {"]]</b>>", "]]&gt;", "stray-end"},
    {"<b>x<i>y</b>z</i>", "<b>x<i>y</i></b><i>z</i>", "overlapping-format"},
    {"<b id='k'>x<i id='j'>y</b>z</i>", "<b id='k'>x<i id='j'>y</i></b><i>z</i>",
        "overlapping-format"},
    {"a<br>b<br></br>c<input name='n'>", "a<br/>b<br></br>c<input name='n'/>",
        "missing-end missing-end"},
    {"a</p>\n<p>b\n<p>c", "a</p>\n<p>b</p>\n<p>c", "missing-end"},
    {"<select><option>a<option>b</select>", "<select><option>a</option><option>b</option></select>",
        "missing-end missing-end"},
    {"<table><tr><td>a<td>b<tr><td>c</table>",
        "<table><tr><td>a</td><td>b</td></tr><tr><td>c</td></tr></table>",
        "missing-end missing-end missing-end missing-end missing-end"},
    {"<p>a</p><b>b<table></b></table>", "<p>a</p><b>b</b><table></table>", "overlapping-format"},
};

constexpr MendRow kDecks[] = {
    {"<wml><card>a <b>b</b>\n<p>c</p>\nd</card></wml>",
        "<wml><card><p>a <b>b</b></p>\n<p>c</p>\n<p>d</p></card></wml>",
        "text-outside-paragraph text-outside-paragraph"},
    {"<wml><card><b><p>c</p></b></card></wml>", "<wml><card><b><p>c</p></b></card></wml>", ""},
    {"<wml>\n<card id='a'>\n <p>x\n<card id='a'>\n</card>\n</wml>\n",
        "<wml>\n<card id='a'>\n <p>x</p>\n</card>\n<card id='a2'>\n</card>\n</wml>\n",
        "doubled-id missing-end missing-card-end"},
    {"<wml><p>x</p><card/>y</wml>",
        "<wml><card id=\"Korrigiert\" title=\"Nicht festgelegt\"><p>x</p></card><card/>"
        "<card id=\"Korrigiert2\" title=\"Nicht festgelegt\"><p>y</p></card></wml>",
        "missing-card missing-card text-outside-paragraph"},
    {"<card><p>x</p></card>", "<wml><card><p>x</p></card></wml>", "missing-deck"},
    {"<wml><card/></wml><wml><card/></wml>", "<wml><card/><card/></wml>", "stray-end missing-deck"},
    {"<card/>\n<wml><card/></wml>", "<wml><card/>\n<card/></wml>", "misplaced-element"},
    {"", "<wml></wml>", "missing-deck"},
    {"\n<?xml version=1.0?>\n<!doctype wml>\n<wml><card/></wml>",
        "<?xml version=\"1.0\"?>\n<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
        "\"http://www.wapforum.org/DTD/wml_1.1.xml\">\n<wml><card/></wml>",
        "bad-declaration bad-declaration bad-declaration"},
    {"<!DOCTYPE WML><WML>&nbsp;</WML>",
        "<!DOCTYPE wml><wml><card id=\"Korrigiert\" title=\"Nicht "
        "festgelegt\"><p>&#160;</p></card></wml>",
        "wrong-case wrong-case unknown-entity missing-card text-outside-paragraph wrong-case"},
    {"<?xml version='1.0' encoding='klingon'?><wml/>",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><wml/>", "bad-declaration"},
    {"<wml><card><do><go href='#a'></do><p>x</p></card></wml>",
        "<wml><card><do><go href='#a'></go></do><p>x</p></card></wml>", "missing-end"},
    {"<html><p>x</p></html>", "<html><p>x</p></html>", ""},
};

std::set<std::string> expectMended(
    const std::string& before, const std::string& after, std::string_view rules)
{
    const auto repaired = repairFile(before);
    EXPECT_EQ(repaired.bytes, after);
    std::string told;
    std::set<std::string> names;
    for (const auto& mend : repaired.mends) {
        told.append(told.empty() ? "" : " ").append(nameOf(mend.rule));
        names.emplace(nameOf(mend.rule));
    }
    EXPECT_EQ(told, rules) << before;
    return names;
}

TEST(WmlMends, MendsEachFaultByItsRule)
{
    std::set<std::string> used;
    for (const auto& row : kInText) {
        const std::string frame[] = {"<wml><card><p>", "</p></card></wml>"};
        used.merge(expectMended(
            frame[0] + row.before + frame[1], frame[0] + row.after + frame[1], row.rules));
    }
    for (const auto& row : kDecks)
        used.merge(expectMended(row.before, row.after, row.rules));
    for (const auto& text : mendTexts())
        EXPECT_TRUE(used.contains(std::string(text.name))) << text.name << " has no row";
}

} // namespace
} // namespace quillmere
