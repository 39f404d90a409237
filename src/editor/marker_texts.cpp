// One row for each name of an atom; the attribute that tells most goes into the label. Held by
// marker_texts_test.cpp.

#include "editor/marker_texts.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "editor/page/atom_marker.h"
#include "editor/page/markup_tags.h"
#include "editor/page/surface_page.h"
#include "editor/page_formats.h"

#include <QByteArrayView>

#include <algorithm>
#include <charconv>
#include <optional>

namespace quillmere {
namespace {

constexpr qsizetype kMaxLabel = 28;
constexpr qsizetype kMaxSource = 300;
constexpr int kUsualColumns = 14;
constexpr int kMostColumns = 24;

QString shortened(QString text, qsizetype length)
{
    text = text.simplified();
    if (text.size() > length) text = text.left(length - 1) + u'\u2026';
    return text;
}

QString unicode(std::string_view text)
{
    return QString::fromStdString(toUtf8(text));
}

/// The value of an attribute of a start tag as a person reads it.
QString valueOf(std::string_view tag, std::string_view name)
{
    const auto value = attributeOf(tag, name);
    return shownText(QByteArrayView(value.data(), static_cast<qsizetype>(value.size())));
}

std::optional<int> numberOf(std::string_view tag, std::string_view name)
{
    const auto value = attributeOf(tag, name);
    int number = 0;
    const auto read = std::from_chars(value.data(), value.data() + value.size(), number);
    const bool isNumber = read.ec == std::errc() && read.ptr == value.data() + value.size();
    return isNumber ? std::optional(number) : std::nullopt;
}

/// Tenths of a second as seconds: "1,5 s".
QString seconds(std::string_view timer)
{
    const auto tenths = numberOf(timer, "value");
    if (!tenths) return valueOf(timer, "value");
    return QString::number(*tenths / 10.0).replace(u'.', u',') + QStringLiteral(" s");
}

struct Named {
    std::string_view name;
    const char* text;
};

constexpr Named kActions[] = {{"accept", "Weiter"}, {"prev", "Zurück"}, {"help", "Hilfe"},
    {"reset", "Zurücksetzen"}, {"options", "Optionen"}, {"delete", "Löschen"}};

constexpr Named kEvents[] = {{"onenterforward", "Beim Öffnen der Karte"},
    {"onenterbackward", "Bei der Rückkehr zur Karte"}, {"ontimer", "Nach Ablauf des Zeitgebers"},
    {"onpick", "Bei der Wahl"}};

constexpr Named kTasks[] = {{"<prev", "zurück zur Karte davor"},
    {"<refresh", "die Anzeige wird aufgefrischt"}, {"<noop", "es geschieht nichts"}};

template <std::size_t size>
QString textIn(const Named (&rows)[size], std::string_view name, const QString& otherwise)
{
    const auto* const row = std::ranges::find_if(
        rows, [name](const Named& each) { return equalIgnoringCase(each.name, name); });
    return row == std::end(rows) ? otherwise : QString::fromUtf8(row->text);
}

QString actionName(std::string_view tag)
{
    if (auto label = valueOf(tag, "label"); !label.isEmpty()) return label;
    const auto type = attributeOf(tag, "type");
    return textIn(kActions, type, valueOf(tag, "type"));
}

/// What an event or action does: the first task in it.
QString task(const Atom& atom)
{
    const std::string_view source = atom.source;
    if (const auto go = findIgnoringCase(source, "<go"); go != npos) {
        const auto end = std::min(source.size(), source.find('>', go));
        return QStringLiteral("weiter zu ") + valueOf(source.substr(go, end - go), "href");
    }
    for (const auto& row : kTasks)
        if (findIgnoringCase(source, row.name) != npos) return QString::fromUtf8(row.text);
    return QStringLiteral("nichts");
}

QString nameOf(const Atom& atom)
{
    return valueOf(atom.startTag(), "name");
}

/// "firma" of "&firma;".
QString entityName(const Atom& atom)
{
    return unicode(atom.source).remove(u'&').remove(u';');
}

/// Markup in it is shown as it is written.
QString entityText(const Atom& atom)
{
    const bool isMarkup = atom.meaning.find('<') != npos;
    return isMarkup ? unicode(atom.meaning) : shownText(QByteArrayView(atom.meaning));
}

using AtomText = QString (*)(const Atom&);

struct AtomRow {
    std::string_view name;
    const char* label;
    AtomText more; ///< of the label
    AtomText meaning;
};

QString told(const char* text)
{
    return QString::fromUtf8(text);
}

constexpr AtomText kNothing = [](const Atom&) { return QString(); };

constexpr AtomRow kAtoms[] = {
    {"timer", "Zeitgeber", [](const Atom& atom) { return seconds(atom.startTag()); },
        [](const Atom& atom) {
            return told("Nach %1 folgt das Ereignis ontimer.").arg(seconds(atom.startTag()));
        }},
    {"onevent", "Ereignis", [](const Atom& atom) { return valueOf(atom.startTag(), "type"); },
        [](const Atom& atom) {
            const auto type = attributeOf(atom.startTag(), "type");
            return textIn(kEvents, type, told("Beim Ereignis ") + valueOf(atom.startTag(), "type"))
                + ": " + task(atom) + '.';
        }},
    {"do", "Aktion", [](const Atom& atom) { return actionName(atom.startTag()); },
        [](const Atom& atom) {
            return told("Taste oder Menüpunkt „%1“: %2.")
                .arg(actionName(atom.startTag()), task(atom));
        }},
    {"input", "Eingabe", nameOf,
        [](const Atom& atom) {
            return told("Eingabefeld für die Variable „%1“.").arg(nameOf(atom));
        }},
    {"setvar", "Variable", nameOf,
        [](const Atom& atom) {
            return told("Setzt die Variable „%1“ auf „%2“.")
                .arg(nameOf(atom), valueOf(atom.startTag(), "value"));
        }},
    {"postfield", "Feld", nameOf,
        [](const Atom& atom) { return told("Sendet „%1“ mit.").arg(nameOf(atom)); }},
    {"go", "Sprung", [](const Atom& atom) { return valueOf(atom.startTag(), "href"); },
        [](const Atom& atom) { return told("Es geht ") + task(atom) + '.'; }},
    {"prev", "Zurück", kNothing, [](const Atom&) { return told("Führt zur Karte davor."); }},
    {"refresh", "Auffrischen", kNothing,
        [](const Atom&) { return told("Frischt die Anzeige auf."); }},
    {"noop", "Ohne Wirkung", kNothing, [](const Atom&) { return told("Es geschieht nichts."); }},
    {"meta", "Angabe", nameOf, [](const Atom&) { return told("Eine Angabe über das Deck."); }},
    {"access", "Zugriff", [](const Atom& atom) { return valueOf(atom.startTag(), "domain"); },
        [](const Atom&) { return told("Wer auf das Deck zugreifen darf."); }},
    {"comment", "Kommentar", kNothing,
        [](const Atom&) { return told("Eine Bemerkung, die das Telefon nicht zeigt."); }},
    {"cdata", "Wörtlicher Text", kNothing,
        [](const Atom&) { return told("Text, in dem jedes Zeichen für sich selbst steht."); }},
    {"entity", "Textbaustein", entityName,
        [](const Atom& atom) { return told("Das Deck setzt hier ein: ") + entityText(atom); }},
    {"pi", "Anweisung", kNothing,
        [](const Atom&) { return told("Eine Anweisung an das Programm, das das Deck liest."); }},
};

const AtomRow* rowOf(const Atom& atom)
{
    const auto* const row = std::ranges::find_if(
        kAtoms, [&](const AtomRow& each) { return equalIgnoringCase(each.name, atom.name); });
    return row == std::end(kAtoms) ? nullptr : row;
}

QString tagName(QString tag)
{
    if (tag.startsWith(u'<')) tag.remove(0, 1);
    const auto* const end
        = std::find_if(tag.cbegin(), tag.cend(), [](QChar c) { return c.isSpace() || c == u'>'; });
    if (end != tag.cbegin()) tag.truncate(end - tag.cbegin());
    return tag;
}

QString meaningOf(std::string_view source, const Atom& atom)
{
    if (const auto* const row = rowOf(atom)) return row->meaning(atom);
    const auto part = groupPart(source);
    if (part == GroupPart::Options) return told("Überschrift einer Gruppe von Wahlpunkten.");
    if (part == GroupPart::FieldsStart) return told("Hier beginnt eine Gruppe von Feldern.");
    if (part == GroupPart::FieldsEnd) return told("Hier endet eine Gruppe von Feldern.");
    return atom.name.empty() ? QString() : told("Kann hier nicht gezeigt werden.");
}

} // namespace

QString markerLabel(std::string_view source)
{
    const auto atom = readAtom(source);
    if (groupPart(source) != GroupPart::None) return valueOf(source, "title");
    if (atom.name.empty()) return shortened(tagName(unicode(source)), kMaxLabel);
    const auto* const row = rowOf(atom);
    if (row == nullptr) return shortened(unicode(atom.name), kMaxLabel);
    return shortened(told(row->label) + ' ' + row->more(atom), kMaxLabel);
}

QString markerToolTip(std::string_view source)
{
    const auto atom = readAtom(source);
    const auto written = unicode(atom.name.empty() ? source : atom.source);
    const auto meaning = meaningOf(source, atom);
    if (meaning.isEmpty()) return "<p>" + written.toHtmlEscaped() + "</p>";
    return "<p>" + meaning.toHtmlEscaped() + "</p><p><code>"
        + shortened(written, kMaxSource).toHtmlEscaped() + "</code></p>";
}

bool isInputAtom(std::string_view source)
{
    return equalIgnoringCase(readAtom(source).name, "input");
}

InputField inputField(std::string_view source)
{
    const auto atom = readAtom(source);
    const auto tag = atom.startTag();
    InputField field;
    field.text = valueOf(tag, "value");
    field.isValue = !field.text.isEmpty();
    const bool isHidden = equalIgnoringCase(attributeOf(tag, "type"), "password");
    if (field.isValue && isHidden) field.text.fill(u'\u2022');
    for (const char* name : {"title", "name"})
        if (field.text.isEmpty()) field.text = valueOf(tag, name);
    field.text = field.text.simplified();
    field.columns = std::clamp(numberOf(tag, "size").value_or(kUsualColumns), 2, kMostColumns);
    return field;
}

GroupPart groupPart(std::string_view source)
{
    if (!source.starts_with("<!--")) return GroupPart::None;
    const auto name = markerName(source);
    if (equalIgnoringCase(name, "optgroup")) return GroupPart::Options;
    if (!equalIgnoringCase(name, "fieldset")) return GroupPart::None;
    return source.starts_with("<!--/") ? GroupPart::FieldsEnd : GroupPart::FieldsStart;
}

} // namespace quillmere
