#include "editor/marker_texts.h"

#include "editor/page/atom_marker.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

TEST(MarkerTexts, NameWhatStandsThereAndTellWhatItMeans)
{
    const struct {
        std::string source;
        const char* label;
        const char* meaning; ///< the begin of the tool tip
    } rows[] = {
        {"<timer value=\"10\">", "timer", "<timer"},
        {"</p>", "/p", "</p>"},
        {"<>", ">", "<>"},
        {"< b & c >", "b & c >", "< b"},
        {"<aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa>", "aaaaaaaaaaaaaaaaaaaaaaaaaaa…", "<a"},
        {"<!--#timer &lt;timer name=\"t\" value=\"15\"/&gt;-->", "Zeitgeber 1,5 s",
            "Nach 1,5 s folgt"},
        {"<!--#timer &lt;timer value=\"$(t)\"/&gt;-->", "Zeitgeber $(t)", "Nach $(t) folgt"},
        {"<!--#onevent &lt;onevent type=\"ontimer\"&gt;&lt;go href=\"#a\"/&gt;&lt;/onevent&gt;-->",
            "Ereignis ontimer", "Nach Ablauf des Zeitgebers: weiter zu #a."},
        {"<!--#do &lt;DO TYPE='prev' label='a>b'&gt;&lt;prev/&gt;&lt;/DO&gt;-->", "Aktion a>b",
            "Taste oder Menüpunkt „a>b“: zurück"},
        {"<!--#do &lt;do type=\"help\"/&gt;-->", "Aktion Hilfe", "Taste oder"},
        {"<!--#comment a &#45;&#45; b-->", "Kommentar", "Eine Bemerkung"},
        {"<!--#entity &amp;firma; Muster &amp;amp; Sohn-->", "Textbaustein firma",
            "Das Deck setzt hier ein: Muster & Sohn"},
        {"<!--#entity &amp;x; &lt;b&gt;a&lt;/b&gt;-->", "Textbaustein x",
            "Das Deck setzt hier ein: <b>a</b>"},
        {"<!--#neu:es &lt;neu:es/&gt;-->", "neu:es", "Kann hier nicht"},
        {"<!--fieldset title=\"A &amp; B\"-->", "A & B", "Hier beginnt eine Gruppe"},
        {"<!--#-->", "!--#--", "<!--#-->"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.source);
        EXPECT_EQ(markerLabel(row.source), QString::fromUtf8(row.label));
        const auto meaning = QString::fromUtf8(row.meaning).toHtmlEscaped();
        EXPECT_TRUE(markerToolTip(row.source).startsWith("<p>" + meaning))
            << markerToolTip(row.source).toStdString();
    }
}

TEST(MarkerTexts, ShowInputsAsFields)
{
    const auto field = [](const std::string& attributes) {
        return inputField("<!--#input &lt;input " + attributes + "/&gt;-->");
    };
    const auto named = field("name=\"n\" title=\"T\"");
    EXPECT_EQ(named.text, "T");
    EXPECT_FALSE(named.isValue);
    const auto filled = field("name=\"n\" type=\"password\" value=\"abc\" size=\"9999\"");
    EXPECT_EQ(filled.text, QString(3, u'\u2022'));
    EXPECT_TRUE(filled.isValue);
    EXPECT_LT(filled.columns, 100);
    EXPECT_GT(field("name=\"n\" size=\"-3\"").columns, 0);
}

TEST(Atom, IsReadWithItsReferences)
{
    const auto atom = readAtom("<!--#a &lt;a b='&amp;gt;>'&gt;&#10;&#13;&#9;&#45;&#45;&auml;-->");
    EXPECT_EQ(atom.name, "a");
    EXPECT_EQ(atom.source, "<a b='&gt;>'>\n\r\t--&auml;");
    EXPECT_EQ(atom.startTag(), "<a b='&gt;>'>");
    EXPECT_EQ(readAtom("<!--a b-->").name, "");
}

} // namespace
} // namespace quillmere
