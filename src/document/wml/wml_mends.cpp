// Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/wml_mends.h"

#include <array>

namespace quillmere {

namespace {

/// In the order of MendRule. UTF-8, like all that the program says.
constexpr std::array<MendText, 20> kTexts = {{
    {"missing-end", "Ein fehlendes Ende wurde ergänzt"},
    {"stray-end", "Ein Ende ohne Anfang wurde weggelassen"},
    {"overlapping-format", "Überkreuzte Formate wurden geschlossen und neu geöffnet"},
    {"missing-card-end", "Ein fehlendes </card> wurde ergänzt"},
    {"missing-card", "Inhalt außerhalb der Karten bekam eine Karte"},
    {"missing-deck", "Das Element <wml> wurde ergänzt oder stand doppelt"},
    {"text-outside-paragraph", "Text außerhalb der Absätze bekam einen Absatz"},
    {"misplaced-element", "Ein Element wurde an eine erlaubte Stelle gerückt"},
    {"unquoted-value", "Ein Wert bekam Anführungszeichen"},
    {"missing-value", "Ein Attribut ohne Wert bekam seinen Wert"},
    {"doubled-attribute", "Ein doppeltes Attribut wurde weggelassen"},
    {"broken-tag", "Ein fehlerhaftes Tag wurde berichtigt"},
    {"bare-ampersand", "Ein einzelnes & wurde zu &amp;"},
    {"bare-less", "Ein einzelnes < oder > wurde zu &lt; oder &gt;"},
    {"unknown-entity", "Ein unbekanntes Zeichen wie &auml; wurde umgeschrieben"},
    {"bad-character", "Ein unerlaubtes Zeichen wurde umgeschrieben oder weggelassen"},
    {"bad-comment", "Ein fehlerhafter Kommentar oder Abschnitt wurde berichtigt"},
    {"bad-declaration", "Eine fehlerhafte Deklaration wurde berichtigt oder weggelassen"},
    {"doubled-id", "Eine doppelte Kennung (id) wurde umbenannt"},
    {"wrong-case", "Ein Name wurde klein geschrieben"},
}};

const MendText& row(MendRule rule)
{
    return kTexts.at(static_cast<std::size_t>(rule));
}

} // namespace

std::string_view germanText(MendRule rule)
{
    return row(rule).german;
}

std::string_view nameOf(MendRule rule)
{
    return row(rule).name;
}

std::span<const MendText> mendTexts()
{
    return kTexts;
}

} // namespace quillmere
