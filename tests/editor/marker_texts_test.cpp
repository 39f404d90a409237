#include "editor/marker_texts.h"

#include "editor/page/atom_marker.h"
#include "support/row_file.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

TEST(MarkerTexts, NameWhatStandsThereAndTellWhatItMeans)
{
    for (const auto& row : test::rowsOf("marker_texts.txt")) {
        SCOPED_TRACE(row.at(0));
        EXPECT_EQ(markerLabel(row.at(0)).toStdString(), row.at(1));
        const auto meaning = QString::fromStdString(row.at(2)).toHtmlEscaped();
        EXPECT_TRUE(markerToolTip(row.at(0)).startsWith("<p>" + meaning))
            << markerToolTip(row.at(0)).toStdString();
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
