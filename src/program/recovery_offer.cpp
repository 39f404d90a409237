// Held by recovery_offer_test.cpp.

#include "program/recovery_offer.h"

#include "forms/text.h"
#include "forms/trap.h"

#include <QDateTime>

namespace quillmere {

namespace {

QString deckPath(const RecoveryNote& note)
{
    return shownPath(note.deck.path());
}

void open(Session& session, const CrashedRun& run)
{
    openCrashedRun(session.document, run);
    session.deckFile.remember(run.note.deck.path());
    writeRecoveryNote(session.document, true); // from here on this run answers for the deck
    discardCrashedRun(run);
    session.window->SetScriptUndoFlagsBack();
    session.window->RefreshSurface();
    session.window->setDocChanged(true);
    session.window->SetFocusToBrowser();
}

void offerToDiscard(Session& session, const CrashedRun& run)
{
    const auto question = QStringLiteral("Sollen die \u00c4nderungen an \u201e%1\u201c verworfen "
                                         "werden?\n\nMit \u201eNein\u201c bleiben sie bis zum "
                                         "n\u00e4chsten Start erhalten.");
    if (session.messages.askText(question.arg(deckPath(run.note)), MessageIcon::Question))
        discardCrashedRun(run);
}

} // namespace

QString recoveryQuestion(const RecoveryNote& note)
{
    const auto time = QDateTime::fromSecsSinceEpoch(note.time);
    return QStringLiteral("Quillmere wurde nicht richtig beendet. Das Dokument\n%1\nhatte am %2 um "
                          "%3 Uhr \u00c4nderungen, die nicht gespeichert waren.\n\n"
                          "M\u00f6chten Sie das Dokument mit diesen \u00c4nderungen \u00f6ffnen? "
                          "Die Datei \u00e4ndert sich erst, wenn Sie speichern.")
        .arg(deckPath(note), time.toString(QStringLiteral("dd.MM.yyyy")),
            time.toString(QStringLiteral("HH:mm")));
}

bool offerCrashedRuns(Session& session, const std::string& parent)
{
    for (const auto& run : takeCrashedRuns(parent)) {
        if (!session.messages.askText(recoveryQuestion(run.note), MessageIcon::Question))
            offerToDiscard(session, run);
        else if (trapped(session.messages, [&] { open(session, run); }))
            return true; // the others are offered at the next start
    }
    return false;
}

} // namespace quillmere
