#include "document/changes/deck_change_counts.h"
#include "document/changes/deck_changes_json.h"
#include "document/changes/deck_changes_report.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr std::string_view kRead
    = "<wml><card id=\"a\">\n<do type=\"prev\"\n name=\"x\"><prev/></do>\n"
      "<p mode=\"nowrap\">F\xFCr <em>alle</em> am Ort<!-- \"c\\ --></p>"
      "</b></card></wml>";
constexpr std::string_view kWritten = "<wml><card id=\"a\">\n<p>Fuer <i>alle</i> Ort</p>\n"
                                      "<p>&lt;neu &amp; gut></p></wml>";

TEST(DeckChangesReport, TellsEachChangeTheTableAndTheVerdict)
{
    auto report = DeckChanges(kRead, kWritten);
    report.stable = false;
    EXPECT_EQ(textReport(report, "Müller.wml"), R"(Müller.wml
  Verloren: <do type="prev" name="x"> (Zeile 2, Spalte 1)
  Verloren: <prev/> (Zeile 3, Spalte 11)
  Verloren: Attribut mode="nowrap" von <p> (Zeile 4, Spalte 4)
  Geändert: „Für“ wird „Fuer“ (Zeile 4, Spalte 18)
  Verloren: <em> (Zeile 4, Spalte 22)
  Neu: <i> (Zeile 2, Spalte 9 des Ergebnisses)
  Verloren: 1 Wort „am“ (Zeile 4, Spalte 36)
  Verloren: Kommentar „"c\“ (Zeile 4, Spalte 42)
  Verloren: Endtag </b> (Zeile 4, Spalte 58)
  Verloren: Endtag </card> (Zeile 4, Spalte 62)
  Neu: <p> (Zeile 3, Spalte 1 des Ergebnisses)
  Neu: 3 Wörter „<neu & gut>“ (Zeile 3, Spalte 4 des Ergebnisses)

             Verloren         Neu    Geändert  Verschoben
</b>                1           -           -           -
</card>             1           -           -           -
<do>                1           -           -           -
<em>                1           -           -           -
<i>                 -           1           -           -
<p>                 -           1           -           -
<p> mode            1           -           -           -
<prev>              1           -           -           -
Wörter              1           3           1           -
Kommentar           1           -           -           -

Das Ergebnis ist nicht wohlgeformt: </wml> beendet nicht das Element, das gerade offen ist (Zeile 3, Spalte 26 des Ergebnisses).
Eine weitere Korrektur ändert es noch einmal.
)");
}

TEST(DeckChangesReport, IsWholeAsJson)
{
    EXPECT_EQ(
        jsonReport(DeckChanges("<p a='\xFC'>1 <b/></p>", "<p a='ue'><b/>1</p><"), "d\"\\\n\x1F"),
        R"({"deck": "d\"\\\u000a\u001f", "wellFormed": false, "fault": {"reason": "Ein „<“ beginnt kein Tag", )"
        R"("line": 1, "column": 20}, "stable": null, "summary": [
  {"subject": "attribute", "name": "p a", "lost": 0, "added": 0, "changed": 1, "moved": 0},
  {"subject": "words", "name": "", "lost": 0, "added": 1, "changed": 0, "moved": 1}], "changes": [
  {"kind": "changed", "subject": "attribute", "element": "p", "attribute": "a", "before": "ü", "after": "ue", "count": 1, "readAt": [1, 4], "writtenAt": [1, 4]},
  {"kind": "moved", "subject": "words", "element": "p", "before": "1", "after": "1", "count": 1, "readAt": [1, 10], "writtenAt": [1, 15]},
  {"kind": "added", "subject": "words", "element": "", "after": "<", "count": 1, "writtenAt": [1, 20]}]})");
}

} // namespace
} // namespace quillmere
