// The deck is repaired in memory, as an opening and a saving would, and compared. Held by
// frm_prepare_save_test.cpp.

#include "editor/window/deck_costs.h"

#include "document/changes/deck_changes.h"
#include "document/deck_repair.h"
#include "document/platform/files.h"
#include "document/platform/memory_work_files.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"
#include "editor/window/element_names.h"
#include "forms/text.h"
#include "imageconv/wbmp_display_copies.h"

#include <algorithm>

namespace quillmere {
namespace {

using Subject = DeckChange::Subject;

constexpr qsizetype kMaxExamples = 3;
constexpr qsizetype kMaxExampleLength = 80;

/// Nobody is asked while nothing is written; the repair is judged as if it were assented to.
class Assent final : public Prompter {
public:
    [[nodiscard]] bool ask(int, std::span<const std::string>, MessageIcon) override { return true; }
    void show(int, std::span<const std::string>, MessageIcon) override { }
    [[nodiscard]] bool showNote(Note) override { return true; }
};

bool isCost(const DeckChange& change)
{
    return change.kind == DeckChange::Kind::Lost || change.kind == DeckChange::Kind::Changed;
}

QString nameOf(const DeckChange& change)
{
    const bool isLost = change.kind == DeckChange::Kind::Lost;
    switch (change.subject) {
    case Subject::Element:
        return shownElement(change.element);
    case Subject::EndTag:
        return shownElement(change.element) + QStringLiteral(": Endmarken");
    case Subject::Attribute:
        return shownElement(change.element) + QStringLiteral(": einzelne Angaben");
    case Subject::Words:
        return isLost ? QStringLiteral("Text")
                      : QStringLiteral("Text, der anders geschrieben wird");
    case Subject::Comment:
        return QStringLiteral("Kommentare");
    case Subject::Doctype:
        return QStringLiteral("Angabe des Dokumenttyps");
    case Subject::Instruction:
        break;
    }
    return QStringLiteral("Anweisungen an Programme");
}

QString exampleOf(const DeckChange& change)
{
    auto text = shownText(change.before).simplified();
    if (change.subject == Subject::Attribute)
        text = shownText(change.attribute) + QStringLiteral("=\"") + text + '"';
    if (text.size() > kMaxExampleLength)
        text = text.left(kMaxExampleLength - 1) + QStringLiteral("…");
    if (change.kind == DeckChange::Kind::Changed)
        text += QStringLiteral(" wird ") + shownText(change.after).simplified();
    if (change.readAt) text.prepend(QStringLiteral("Zeile %1: ").arg(change.readAt->line));
    return text;
}

void add(const DeckChange& change, DeckCosts& costs)
{
    const auto name = nameOf(change);
    auto cost = std::ranges::find(costs, name, &DeckCost::name);
    if (cost == costs.end()) cost = costs.insert(cost, {name, 0, {}});
    const bool isText = change.subject == Subject::Words;
    cost->count += isText ? std::max<std::size_t>(change.count, 1) : 1;
    if (cost->examples.size() < kMaxExamples) cost->examples << exampleOf(change);
}

DeckCosts costsIn(const DeckChangesReport& report)
{
    DeckCosts costs;
    for (const auto& change : report.changes)
        if (isCost(change)) add(change, costs);
    std::ranges::stable_sort(costs, std::ranges::greater(), &DeckCost::count);
    return costs;
}

} // namespace

DeckCosts costsOfSaving(
    const DocumentSession& session, const std::string& text, const std::string& deckDir)
{
    if (session.output.losesNothing()) return {};
    MemoryWorkFiles files;
    WbmpSizes sizes(session.output);
    Assent assent;
    DocumentSession trial{files, sizes, assent, session.settings, session.words, session.output};
    try {
        return costsIn(DeckChanges(text, repairedDeck(trial, text, deckDir)));
    } catch (const Failure& failure) {
        return {{QStringLiteral("Das Dokument könnte nicht gespeichert werden: ")
                + QString::fromStdString(failure.utf8()),
            0, {}}};
    }
}

DeckCosts costsOfSaving(const DocumentSession& session)
{
    const auto& first = session.deck.front();
    const auto path = first.deckDir + first.deckFile;
    if (!regularFileExists(path)) return {};
    return costsOfSaving(session, textFromDeckBytes(readFile(path)), first.deckDir);
}

} // namespace quillmere
