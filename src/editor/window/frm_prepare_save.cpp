// Storing, saving, and what is said before a save costs the deck something. Held by
// frm_prepare_save_test.cpp.

#include "editor/window/frm_prepare.h"

#include "document/deck_store.h"
#include "document/platform/files.h"
#include "document/platform/word_ids.h"
#include "document/text/failure.h"
#include "editor/window/deck_costs.h"
#include "forms/text.h"
#include "project/deck_files.h"

#include <utility>

namespace quillmere {
namespace {

constexpr auto kAlteredOutside
    = "Die Datei „%1“ wurde von einem anderen Programm geändert, seit Sie sie geöffnet haben.\n"
      "Soll sie durch Ihr Dokument ersetzt werden?";
constexpr auto kRemovedOutside
    = "Die Datei „%1“ wurde gelöscht oder verschoben, seit Sie sie geöffnet haben.\n"
      "Soll sie mit Ihrem Dokument neu angelegt werden?";

} // namespace

bool frmPrepare::docChanged() const
{
    return mDocChanged || (mScriptView && mScriptChanged);
}

void frmPrepare::setDocChanged(bool changed)
{
    mDocChanged = changed;
    showTitle();
}

/// The surface's text was changed or loaded.
void frmPrepare::surfaceChanged()
{
    const int shown = objBrowserCard->document()->characterCount() - 1; // not its last line end
    lblCharCount->setText(QStringLiteral("%1 Zeichen").arg(shown));
    if (mRefreshGuard >= 1 || !deckIsOpen()) return;
    if (!mDocChanged) setDocChanged(true);
    idle_.start();
}

// A store that fails is tried again after the next change but told once only: the text stays in
// the window.
void frmPrepare::storeWhenIdle()
{
    try {
        store();
        idleFailed_ = false;
    } catch (const Failure& failure) {
        if (std::exchange(idleFailed_, true)) return;
        session_.messages.ShowCriticalError(QString::fromStdString(failure.utf8())
            + QStringLiteral("\nDer Text im Fenster ist unverändert. Bitte speichern Sie ihn."));
    }
}

void frmPrepare::tellStored() const
{
    if (session_.afterStore) session_.afterStore(docChanged());
}

void frmPrepare::AskAndSaveTmpWmlDocToWmlDoc(bool Ask)
{
    const bool isChanged = docChanged();
    if (!deckIsOpen() || !isChanged) return;
    if (Ask && !session_.messages.ask(word::kSaveChanges, {}, MessageIcon::Question)) return;
    requireOwnFile();
    store();
    if (mScriptView) takeSource(); // which stays taken where the file cannot be written
    writeDeckFile();
    setDocChanged(false);
    tellStored();
}

void frmPrepare::writeDeckFile()
{
    WriteDeck(session_.document);
    const auto& first = session_.document.deck.front();
    replaceFile(deckPath(), session_.document.workFiles.read(first.wmlDir + first.wmlFile));
    rememberFile();
}

std::string frmPrepare::deckPath() const
{
    const auto& first = session_.document.deck.front();
    return first.deckDir + first.deckFile;
}

void frmPrepare::rememberFile()
{
    watched_ = deckPath();
    session_.deckFile.remember(watched_);
}

/// What another program wrote is replaced only where the person wants it.
void frmPrepare::requireOwnFile()
{
    const auto change = watched_ == deckPath() ? session_.deckFile.change() : DeckFileChange::None;
    if (change == DeckFileChange::None) return;
    const auto question
        = QString::fromUtf8(change == DeckFileChange::Removed ? kRemovedOutside : kAlteredOutside);
    const auto name = shownPath(session_.document.deck.front().deckFile);
    if (session_.messages.askText(question.arg(name), MessageIcon::Warning)) return;
    throw FileFailure("Das Dokument wurde nicht gespeichert. Die Datei ist unverändert, und Ihr "
                      "Text steht weiter im Fenster. Mit „Speichern unter“ können Sie ihm einen "
                      "anderen Namen geben.");
}

/// Once for each deck that was opened, as soon as it is shown.
void frmPrepare::warnOfCosts()
{
    if (!std::exchange(deckIsNew_, false) || !deckIsOpen()) return;
    const auto costs = costsOfSaving(session_.document);
    if (costs.isEmpty() || !offerStandardOutput(costs)) return;
    useStandardOutput();
}

/// The deck is opened once more: what the default drops on the way in is then there as well. One
/// with changes, such as a recovered one, keeps them and is written by the switch from now on.
void frmPrepare::useStandardOutput()
{
    session_.settings.WriteSetting("StandardOutput", "Yes");
    session_.document.output = OutputRules(true);
    if (docChanged()) return;
    const auto first = session_.document.deck.front();
    OpenDocument(session_, first.deckFile, first.deckDir);
}

} // namespace quillmere
