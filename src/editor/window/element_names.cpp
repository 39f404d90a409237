// Held by frm_prepare_save_test.cpp.

#include "editor/window/element_names.h"

#include "forms/text.h"

#include <algorithm>
#include <iterator>

namespace quillmere {
namespace {

struct ElementName {
    std::string_view name;
    const char* german;
};

constexpr ElementName kNames[] = {
    {"a", "Links"},
    {"access", "Zugriffsrechte"},
    {"anchor", "Links mit Aufgabe"},
    {"b", "Fettschrift"},
    {"big", "Große Schrift"},
    {"br", "Zeilenwechsel"},
    {"card", "Bereiche"},
    {"do", "Tasten und Menüpunkte"},
    {"em", "Betonungen"},
    {"fieldset", "Feldgruppen"},
    {"go", "Sprünge"},
    {"head", "Kopf des Dokuments"},
    {"i", "Kursivschrift"},
    {"img", "Bilder"},
    {"input", "Eingabefelder"},
    {"meta", "Angaben im Kopf"},
    {"noop", "Aufgaben, die nichts tun"},
    {"onevent", "Ereignisse"},
    {"optgroup", "Gruppen von Auswahlpunkten"},
    {"option", "Auswahlpunkte"},
    {"p", "Absätze"},
    {"postfield", "Werte, die gesendet werden"},
    {"pre", "Vorformatierter Text"},
    {"prev", "Rücksprünge"},
    {"refresh", "Neues Anzeigen"},
    {"select", "Auswahlfelder"},
    {"setvar", "Variablen, die gesetzt werden"},
    {"small", "Kleine Schrift"},
    {"strong", "Starke Betonungen"},
    {"table", "Tabellen"},
    {"td", "Tabellenfelder"},
    {"template", "Vorlage für alle Bereiche"},
    {"timer", "Zeitgeber"},
    {"tr", "Tabellenzeilen"},
    {"u", "Unterstreichungen"},
    {"wml", "Rahmen des Dokuments"},
};

} // namespace

QString shownElement(std::string_view name)
{
    const auto* row = std::ranges::find(kNames, name, &ElementName::name);
    const char* german = row == std::end(kNames) ? "Unbekannte Elemente" : row->german;
    return QString::fromUtf8(german) + QStringLiteral(" <") + shownText(name) + '>';
}

} // namespace quillmere
