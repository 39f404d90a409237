// Storing, saving, and what is said before a save costs the deck something. Held by
// frm_prepare_save_test.cpp.

#include "editor/window/frm_prepare.h"

#include "document/deck_store.h"
#include "document/platform/files.h"
#include "document/platform/word_ids.h"
#include "document/standard/standard_deck.h"
#include "document/text/failure.h"
#include "document/text/limits.h"
#include "editor/window/deck_mends.h"
#include "forms/text.h"
#include "project/deck_files.h"

#include <array>
#include <utility>

namespace quillmere {

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
    showCharacterCount(shown);
    if (mRefreshGuard >= 1 || !deckIsOpen()) return;
    if (!mDocChanged) setDocChanged(true);
    storeSoon();
}

// From the first change on, so that one who types on and on is stored as well.
void frmPrepare::storeSoon()
{
    if (!idle_.isActive()) idle_.start();
}

// A store that fails is tried again after the next change but told once only: the text stays in
// the window.
void frmPrepare::storeWhenIdle()
{
    try {
        mScriptView ? storeSource() : store();
        idleFailed_ = false;
    } catch (const Failure& failure) {
        if (std::exchange(idleFailed_, true)) return;
        session_.messages.ShowCriticalError(
            QString::fromStdString(failure.utf8()) + '\n' + word(word::kTextStays));
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
    if (!mayMend()) throw FileFailure(word(word::kNotSaved).toStdString());
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
        = change == DeckFileChange::Removed ? word::kRemovedOutside : word::kAlteredOutside;
    const std::array name{coreText(shownPath(session_.document.deck.front().deckFile))};
    if (session_.messages.ask(question, name, MessageIcon::Warning)) return;
    throw FileFailure(word(word::kNotSaved).toStdString());
}

/// Once for each deck that was opened, as soon as it is shown.
void frmPrepare::lookAtNewDeck()
{
    if (!std::exchange(deckIsNew_, false) || !deckIsOpen()) return;
    const bool isRecovered = losesNothing(session_.document) && docChanged();
    if (isRecovered && regularFileExists(deckPath())) recallMends(readFile(deckPath()));
    warnOfCosts();
}

/// In a recovered deck whose source was taken over, the mends of its file are made and not told.
void frmPrepare::recallMends(const std::string& file)
{
    const bool isOpened = session_.document.deck.front().origin.deck->file() == file;
    if (!isOpened && file.size() <= kMaxLosslessDeckLength) mendsMade_ = mendsOfFile(file);
}

void frmPrepare::warnOfCosts()
{
    const auto costs = costsOfSaving(session_.document);
    if (costs.empty()) return;
    const auto answer = askAboutCosts(costs);
    if (answer == CostsAnswer::Keep) return;
    if (answer == CostsAnswer::StandardAlways)
        session_.settings.WriteSetting("StandardOutput", "Yes");
    useStandardOutput();
}

/// The deck is opened once more: what the default drops on the way in is then there as well. One
/// with changes, such as a recovered one, keeps them and is written by the switch from now on.
void frmPrepare::useStandardOutput()
{
    if (docChanged()) {
        session_.document.output = OutputRules(true);
        return;
    }
    const auto first = session_.document.deck.front();
    OpenDocument(session_, first.deckFile, first.deckDir, OutputRules(true));
}

/// Asked of a deck that is generated. Once a deck: who assented is not asked again.
bool frmPrepare::mayMend()
{
    const auto mends = mendsMade_ + mendsMade(session_.document);
    if (mends.isEmpty() || mayMend_) return true;
    return mayMend_ = askAboutMends(mends);
}

} // namespace quillmere
