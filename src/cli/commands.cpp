#include "cli/commands.h"

namespace quillmere::cli {

namespace {

constexpr Command kCommands[] = {
    {"repair",
        "DECK.wml... [-o DATEI | --out-dir ORDNER | --backup]\n"
        "                            [--keep-work ORDNER] [--report | --dry-run] [--json]",
        "liest Decks, bereinigt sie und schreibt sie wieder", "odbknrj",
        "Ohne -o und --out-dir wird das Deck selbst ersetzt; „-o -“ schreibt auf die\n"
        "Standardausgabe, und „/dev/stdin“ als Deck liest von der Standardeingabe. Mehrere\n"
        "Decks gehen mit --out-dir oder jedes an seinen Ort. Schlägt ein Deck fehl, bleibt\n"
        "seine Datei, wie sie war, und die nächsten folgen. Ist ein Ergebnis nicht\n"
        "wohlgeformt, steht das auf der Standardfehlerausgabe; geschrieben wird es trotzdem.\n"
        "--keep-work schreibt seine Dateien vor dem Deck und ersetzt, was schon so heißt; was\n"
        "von einem Deck mit mehr Bereichen daliegt, bleibt. --backup schreibt seine Kopie, wenn\n"
        "das Deck sich ändert. --json gibt ein einziges JSON-Dokument aus, eine Liste mit einem\n"
        "Objekt je Deck; was fehlschlug, hat darin „error“.",
        &runRepair},
    {"areas", "DECK.wml [--json]", "zeigt die Bereiche eines Decks", "j",
        "Eine Zeile je Bereich, mit Tabulatoren getrennt: Nummer ab 0, Name (id), Titel,\n"
        "Beschriftung und Ziel des Sprungs. Ein Name ist leer, wo die Karte beim Öffnen ihren\n"
        "Tag verliert, weil „id=\"“ nicht gleich hinter „<card “ steht.",
        &runAreas},
    {"step", "OPERATION [ANGABE]...", "führt einen einzelnen Schritt als Filter aus", "p",
        "Liest von der Standardeingabe und schreibt auf die Standardausgabe, ohne ein Zeichen\n"
        "hinzuzufügen. So zeigt sich, welcher Schritt ein Deck verändert hat.\n"
        "Die Bytes der Eingabe und der Angaben gelten, wie sie sind, als Windows-1252; UTF-8\n"
        "wird anders als beim Öffnen eines Decks nicht umgesetzt (dafür: iconv -t CP1252).\n"
        "„quillmere-cli step“ ohne Angabe nennt die Operationen.",
        &runStep},
    {"wbmp-show", "BILD.wbmp -o BILD.bmp", "macht aus einem WBMP das Bild der Bearbeitung (BMP)",
        "o", "Zeichnet das Bild auf dem Grund des Geräts, wie die Bearbeitung es zeigt.",
        &runWbmpShow},
    {"words", "[NUMMER [TEXT]...]", "zeigt die Texte des Programms", "w",
        "Ohne Nummer alle, die nicht leer sind; sonst einen, mit den Texten in seinen Lücken.\n"
        "Gelesen wird ResWords.res oder, wo sie fehlt, ResWords.ini, aus der sie dann entsteht:\n"
        "Eine geänderte ResWords.ini gilt, sobald ResWords.res gelöscht ist.",
        &runWords},
};

} // namespace

std::span<const Command> commands()
{
    return kCommands;
}

} // namespace quillmere::cli
