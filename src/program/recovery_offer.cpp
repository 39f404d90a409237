// Held by recovery_offer_test.cpp.

#include "program/recovery_offer.h"

#include "document/platform/word_ids.h"
#include "forms/text.h"
#include "forms/trap.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

std::string deckPath(const RecoveryNote& note)
{
    return coreText(shownPath(note.deck.path()));
}

/// As this person's program saw it last, so that a save asks before it goes over another's text.
void rememberFile(Session& session, const CrashedRun& run)
{
    const auto path = run.note.deck.path();
    if (deckFileChange(run) == DeckFileChange::None)
        session.deckFile.remember(path);
    else
        session.deckFile.resume(path, *run.note.seen);
}

void open(Session& session, const CrashedRun& run)
{
    const auto source = sourceOf(run);
    openCrashedRun(session.document, run);
    rememberFile(session, run);
    session.window->SetScriptUndoFlagsBack();
    session.window->RefreshSurface();
    session.window->setDocChanged(true);
    writeRecoveryNote(session.document, {true, session.deckFile.seen()});
    if (source) session.window->resumeSource(*source);
    discardCrashedRun(run); // from here on this run answers for the deck
    session.window->SetFocusToBrowser();
}

void offerToDiscard(Session& session, const CrashedRun& run)
{
    const std::array gaps{deckPath(run.note)};
    if (session.messages.ask(word::kDiscardRecovered, gaps, MessageIcon::Question))
        discardCrashedRun(run);
}

struct ChangeWord {
    DeckFileChange change;
    int word;
};
constexpr ChangeWord kRecoverWords[] = {
    {DeckFileChange::None, word::kRecover},
    {DeckFileChange::Altered, word::kRecoverOverAltered},
    {DeckFileChange::Removed, word::kRecoverRemoved},
};

bool isWanted(Session& session, const CrashedRun& run)
{
    const auto time = QDateTime::fromSecsSinceEpoch(run.note.time);
    const std::array gaps{deckPath(run.note), coreText(time.toString(QStringLiteral("dd.MM.yyyy"))),
        coreText(time.toString(QStringLiteral("HH:mm")))};
    const auto* row = std::ranges::find(kRecoverWords, deckFileChange(run), &ChangeWord::change);
    return session.messages.ask(row->word, gaps, MessageIcon::Question);
}

} // namespace

bool offerCrashedRuns(Session& session, const std::string& parent)
{
    for (const auto& run : takeCrashedRuns(parent)) {
        if (!isWanted(session, run))
            offerToDiscard(session, run);
        else if (trapped(session.messages, [&] { open(session, run); }))
            return true; // the others are offered at the next start
    }
    return false;
}

} // namespace quillmere
