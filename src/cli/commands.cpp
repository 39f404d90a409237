#include "cli/commands.h"

namespace quillmere::cli {

namespace {

constexpr Command kCommands[] = {
    {"repair", "DECK.wml... [-o DATEI | --out-dir ORDNER] [--keep-work ORDNER] [--report [--json]]",
        "liest Decks, bereinigt sie und schreibt sie wieder", "odkrj",
        "Ohne -o und --out-dir wird das Deck selbst ersetzt; „-o -“ schreibt auf die\n"
        "Standardausgabe. Mehrere Decks gehen mit --out-dir oder jedes an seinen Ort.\n"
        "Schlägt ein Deck fehl, bleibt seine Datei, wie sie war, und die nächsten folgen.\n"
        "--keep-work schreibt seine Dateien vor dem Deck.",
        &runRepair},
    {"areas", "DECK.wml [--json]", "zeigt die Bereiche eines Decks", "j",
        "Eine Zeile je Bereich, mit Tabulatoren getrennt: Nummer ab 0, Name (id), Titel,\n"
        "Beschriftung und Ziel des Sprungs. Ein Name ist leer, wo die Karte beim Öffnen ihren\n"
        "Tag verliert, weil „id=\"“ nicht gleich hinter „<card “ steht.",
        &runAreas},
    {"step", "OPERATION [ANGABE]...", "führt einen einzelnen Schritt als Filter aus", "p",
        "Liest von der Standardeingabe und schreibt auf die Standardausgabe, ohne ein Zeichen\n"
        "hinzuzufügen. So zeigt sich, welcher Schritt ein Deck verändert hat.\n"
        "„quillmere-cli step“ ohne Angabe nennt die Operationen.",
        &runStep},
    {"wbmp-show", "BILD.wbmp -o BILD.bmp", "macht aus einem WBMP das Bild der Bearbeitung (BMP)",
        "o", "Zeichnet das Bild auf dem Grund des Geräts, wie die Bearbeitung es zeigt.",
        &runWbmpShow},
    {"words", "[NUMMER [TEXT]...]", "zeigt die Texte des Programms", "w",
        "Ohne Nummer alle; sonst einen, mit den Texten in seinen Lücken.", &runWords},
};

} // namespace

std::span<const Command> commands()
{
    return kCommands;
}

} // namespace quillmere::cli
