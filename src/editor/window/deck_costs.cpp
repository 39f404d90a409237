// The deck is repaired in memory, as an opening and a saving would, and compared. Held by
// frm_prepare_tools_test.cpp.

#include "editor/window/deck_costs.h"

#include "document/changes/deck_changes.h"
#include "document/changes/deck_changes_report.h"
#include "document/deck_repair.h"
#include "document/platform/files.h"
#include "document/platform/memory_work_files.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"
#include "forms/text.h"
#include "imageconv/wbmp_display_copies.h"

namespace quillmere {
namespace {

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

QStringList linesOf(const DeckChangesReport& report)
{
    QStringList lines;
    for (const auto& change : report.changes)
        if (isCost(change)) lines << shownText(describeChange(change));
    return lines;
}

} // namespace

QStringList costsOfSaving(
    const DocumentSession& session, const std::string& text, const std::string& deckDir)
{
    if (session.output.writesCharacterReferences()) return {};
    MemoryWorkFiles files;
    WbmpSizes sizes(session.output);
    Assent assent;
    DocumentSession trial{files, sizes, assent, session.settings, session.words, session.output};
    try {
        return linesOf(DeckChanges(text, repairedDeck(trial, text, deckDir)));
    } catch (const Failure& failure) {
        return {QStringLiteral("Das Dokument könnte nicht gespeichert werden: ")
            + QString::fromStdString(failure.utf8())};
    }
}

QStringList costsOfSaving(const DocumentSession& session)
{
    const auto& first = session.deck.front();
    const auto path = first.deckDir + first.deckFile;
    if (!regularFileExists(path)) return {};
    return costsOfSaving(session, textFromDeckBytes(readFile(path)), first.deckDir);
}

} // namespace quillmere
