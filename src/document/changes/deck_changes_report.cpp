// Texts are put together in Windows-1252 and cross into UTF-8 at the end, once. German words of
// the source are UTF-8 and cross the other way. Held by deck_changes_report_test.cpp.

#include "document/changes/deck_changes_report.h"

#include "document/changes/deck_change_counts.h"
#include "document/changes/markup_fault_texts.h"
#include "document/text/windows1252.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = DeckChange::Kind;
using Subject = DeckChange::Subject;

constexpr std::string_view kKinds[] = {"Verloren", "Neu", "Geändert", "Verschoben"};
constexpr std::string_view kSubjects[] = {"Element", "Attribut", "Endtag", "Wörter", "Kommentar",
    "Dokumenttyp", "Verarbeitungsanweisung"};

template <typename Enum> std::size_t row(Enum value)
{
    return static_cast<std::size_t>(value);
}

std::string german(std::string_view utf8)
{
    return fromUtf8(utf8);
}

std::string quoted(std::string_view text)
{
    return german("„").append(text).append(german("“"));
}

/// A tag may be written over several lines; here it stands in one.
std::string inOneLine(std::string_view text)
{
    std::string line;
    for (const char character : text) {
        const bool blank = static_cast<unsigned char>(character) <= ' ';
        if (!blank) line += character;
        if (blank && !line.empty() && line.back() != ' ') line += ' ';
    }
    return line;
}

std::string attributeText(const DeckChange& change)
{
    std::string text = "Attribut " + change.attribute;
    if (change.kind != Kind::Changed)
        text += "=\"" + (change.kind == Kind::Added ? change.after : change.before) + '"';
    text.append(" von <").append(change.element).append(">");
    if (change.kind == Kind::Changed)
        text += ": " + quoted(change.before) + " wird " + quoted(change.after);
    return text;
}

std::string wordsText(const DeckChange& change)
{
    if (change.kind == Kind::Changed)
        return quoted(change.before) + " wird " + quoted(change.after);
    const auto number
        = change.count == 1 ? "1 Wort " : std::to_string(change.count) + german(" Wörter ");
    return number + quoted(change.kind == Kind::Added ? change.after : change.before);
}

std::string changeText(const DeckChange& change)
{
    const auto& text = change.kind == Kind::Added ? change.after : change.before;
    switch (change.subject) {
    case Subject::Element:
        return text;
    case Subject::EndTag:
        return "Endtag " + text;
    case Subject::Attribute:
        return attributeText(change);
    case Subject::Words:
        return wordsText(change);
    default:
        return german(kSubjects[row(change.subject)]) + ' ' + quoted(text);
    }
}

std::string placeText(const TextPlace& place)
{
    return "Zeile " + std::to_string(place.line) + ", Spalte " + std::to_string(place.column);
}

std::string placesText(const DeckChange& change)
{
    if (!change.readAt && change.writtenAt)
        return " (" + placeText(*change.writtenAt) + " des Ergebnisses)";
    if (!change.readAt) return {};
    if (change.kind != Kind::Moved || !change.writtenAt)
        return " (" + placeText(*change.readAt) + ')';
    return " (" + placeText(*change.readAt) + ", im Ergebnis " + placeText(*change.writtenAt) + ')';
}

std::string countedText(const DeckChangeCount& count)
{
    switch (count.subject) {
    case Subject::Element:
    case Subject::EndTag:
        return '<' + count.name + '>';
    case Subject::Attribute: {
        const auto blank = count.name.find(' ');
        return '<' + count.name.substr(0, blank) + "> " + count.name.substr(blank + 1);
    }
    default:
        return german(kSubjects[row(count.subject)]);
    }
}

std::string rightAligned(std::string_view text, std::size_t width)
{
    return std::string(width - std::min(width, text.size()), ' ').append(text);
}

constexpr std::size_t kNumberWidth = 12;

std::string tableText(const std::vector<DeckChangeCount>& counts)
{
    std::size_t width = 0;
    for (const auto& count : counts)
        width = std::max(width, countedText(count).size());
    std::string table(width, ' ');
    for (const auto& kind : kKinds)
        table += rightAligned(german(kind), kNumberWidth);
    for (const auto& count : counts) {
        const auto name = countedText(count);
        table.append("\n").append(name).append(width - name.size(), ' ');
        for (const auto number : {count.lost, count.added, count.changed, count.moved})
            table += rightAligned(number == 0 ? "-" : std::to_string(number), kNumberWidth);
    }
    return table + '\n';
}

std::string verdictText(const DeckChangesReport& report)
{
    std::string text
        = report.fault ? describeFault(*report.fault) : "Das Ergebnis ist wohlgeformt.";
    text += '\n';
    if (report.stable)
        text += german(*report.stable ? "Eine weitere Korrektur ändert daran nichts.\n"
                                      : "Eine weitere Korrektur ändert es noch einmal.\n");
    return text;
}

} // namespace

std::string describeChange(const DeckChange& change)
{
    return inOneLine(
        german(kKinds[row(change.kind)]) + ": " + changeText(change) + placesText(change));
}

std::string describeFault(const DeckFault& fault)
{
    return "Das Ergebnis ist nicht wohlgeformt: " + describeFault(fault.fault, fault.name) + " ("
        + placeText(fault.writtenAt) + " des Ergebnisses).";
}

std::string textReport(const DeckChangesReport& report, std::string_view deckName)
{
    std::string text;
    for (const auto& change : report.changes)
        text += "  " + describeChange(change) + '\n';
    if (report.changes.empty()) text += german("  Nichts verloren, nichts hinzugekommen.\n");
    if (!report.changes.empty()) text += '\n' + tableText(countChanges(report)) + '\n';
    return std::string(deckName) + '\n' + toUtf8(text + verdictText(report));
}

} // namespace quillmere
