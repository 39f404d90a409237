// The source view: the deck as WML text. What is written there replaces all areas. Held by
// frm_prepare_source_test.cpp.

#include "editor/window/frm_prepare.h"

#include "document/deck_store.h"
#include "document/platform/word_ids.h"
#include "document/standard/deck_source.h"
#include "document/text/text_lines.h"
#include "editor/window/deck_mends.h"
#include "forms/text.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <algorithm>
#include <optional>
#include <utility>

namespace quillmere {
namespace {

// Each step is a whole text; a day of typing must not fill the memory.
constexpr std::size_t kMaxSourceSteps = 400;

constexpr std::string_view kSourcePrefix = "Source";
constexpr std::string_view kSourceSuffix = ".txt";

/// The pointer that tells of work that goes on, as long as the object lives.
class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    Hourglass(Hourglass&&) = delete;
    Hourglass& operator=(Hourglass&&) = delete;
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
};

/// A work file as it is, to be put back.
class KeptFile {
public:
    KeptFile(WorkFiles& files, std::string path)
        : files_(files)
        , path_(std::move(path))
    {
        if (files_.exists(path_)) bytes_ = files_.read(path_);
    }
    void putBack() const
    {
        if (bytes_)
            files_.write(path_, *bytes_);
        else
            files_.remove(path_);
    }

private:
    WorkFiles& files_;
    std::string path_;
    std::optional<std::string> bytes_;
};

/// Gives the view another text as one step of its own undo, with the caret behind what differs.
void replaceText(SourceEdit& view, const QString& wanted)
{
    const auto shown = view.source();
    if (shown == wanted) return;
    const auto [mine, other] = std::ranges::mismatch(shown, wanted);
    const auto same = mine - shown.begin();
    const auto most = std::min(shown.size(), wanted.size()) - same;
    qsizetype tail = 0;
    while (tail < most && shown[shown.size() - 1 - tail] == wanted[wanted.size() - 1 - tail])
        ++tail;
    auto cursor = view.textCursor();
    cursor.setPosition(static_cast<int>(same));
    cursor.setPosition(static_cast<int>(shown.size() - tail), QTextCursor::KeepAnchor);
    cursor.insertText(wanted.mid(same, wanted.size() - tail - same));
    view.setTextCursor(cursor);
}

/// A text as the view shows it. That of a deck without loss is a file in its encoding.
QString shownIn(const DocumentSession& session, const std::string& text)
{
    return losesNothing(session) ? QString::fromStdString(withCrLf(shownSource(text)))
                                 : shownText(withCrLf(text));
}

/// What the view shows as the text of shownIn.
std::string textOf(const DocumentSession& session, const SourceEdit& view)
{
    if (!losesNothing(session)) return view.wml();
    const auto& first = session.deck.front();
    const auto file = session.workFiles.read(first.wmlDir + first.wmlFile);
    return editedSource(file, view.source().toStdString());
}

/// Makes sure that record 0 names a file for the pristine copy.
void namePristine(DocumentSession& session)
{
    auto& first = session.deck.front();
    const bool isThere = !first.pristineFile.empty()
        && session.workFiles.exists(first.pristineDir + first.pristineFile);
    if (isThere) return;
    first.pristineFile = session.workFiles.unusedName(kWorkFilePrefix, kWmlFileSuffix);
    first.pristineDir = session.workFiles.directory();
}

} // namespace

void frmPrepare::btnScript_Click()
{
    if (btnScript->text() == word(word::kGraphicView)) return btnAreaOne_Click();
    if (mRefreshGuard >= 1) return;
    const QScopedValueRollback guard(mRefreshGuard, mRefreshGuard + 1);
    if (!mScriptView) showSource();
    mScriptView = true;
    btnScript->setText(word(word::kGraphicView));
    btnScript->setToolTip(btnAreaOne->toolTip());
    btnAreaOne->setFocus();
    showTitle();
}

void frmPrepare::showSource()
{
    const Hourglass hourglass;
    store();
    WriteDeck(session_.document);
    const auto& first = session_.document.deck.front();
    const auto file = session_.document.workFiles.read(first.wmlDir + first.wmlFile);
    objBrowserCard->hide();
    mScriptChangedBefore = mScriptChanged;
    txtScript->setPlainText(shownIn(session_.document, file));
    const auto text = txtScript->source();
    if (mScriptUndo.front().isEmpty()) mScriptUndo.front() = text;
    if (mScriptInitial.isEmpty()) mScriptInitial = text;
    txtScript->setEnabled(true);
    txtScript->show();
    mScriptChanged = false;
}

void frmPrepare::SetScriptUndoFlagsBack()
{
    mScriptUndo.assign(1, {});
    mScriptChanged = false;
    mScriptChangedBefore = false;
    mScriptInitial.clear();
    for (auto& area : session_.document.deck)
        area.imageCursor = -1;
    surfaceShows_.clear();
    dropStoredSource();
    deckIsNew_ = true;
    mendsMade_.clear();
    mayMend_ = false;
}

void frmPrepare::txtScript_Change()
{
    const int shown = txtScript->document()->characterCount() - 1; // not its last line end
    showCharacterCount(shown);
    if (!std::exchange(mScriptChanged, true)) showTitle();
    storeSoon();
}

/// Keeps the text in a work file until it is taken over or dropped.
void frmPrepare::storeSource()
{
    if (!deckIsOpen() || !mScriptView || !mScriptChanged) return;
    auto& files = session_.document.workFiles;
    if (session_.sourcePath.empty())
        session_.sourcePath = files.directory() + files.createFile(kSourcePrefix, kSourceSuffix);
    files.write(session_.sourcePath, textOf(session_.document, *txtScript));
    tellStored();
}

/// Told first, so that no note ever names a file that is gone.
void frmPrepare::dropStoredSource()
{
    if (session_.sourcePath.empty()) return;
    const auto path = std::exchange(session_.sourcePath, {});
    if (deckIsOpen()) tellStored();
    session_.document.workFiles.remove(path);
}

void frmPrepare::resumeSource(const std::string& wml)
{
    if (!mScriptView) btnScript_Click();
    txtScript->setPlainText(shownIn(session_.document, wml));
    storeSource();
}

/// Ahead of what a blank or Return changes: a step is a word or a line.
void frmPrepare::txtScript_KeyPress()
{
    if (mScriptUndo.size() > kMaxSourceSteps) mScriptUndo.erase(mScriptUndo.begin() + 1);
    mScriptUndo.push_back(txtScript->source());
}

void frmPrepare::undoInSource()
{
    if (!mScriptInitial.isEmpty() && std::exchange(mScriptChangedBefore, false)) {
        if (session_.messages.ask(word::kResetSource, {}, MessageIcon::Question))
            replaceText(*txtScript, mScriptInitial);
        return;
    }
    replaceText(*txtScript, mScriptUndo.back());
    if (mScriptUndo.size() > 2) mScriptUndo.pop_back();
}

void frmPrepare::SavePreparedDokumentAndShowArea(bool Show)
{
    if (mScriptView && deckIsOpen()) {
        if (mScriptChanged) mScriptInitial = txtScript->source();
        const bool isTaken = !mScriptChanged
            || session_.messages.ask(word::kTakeSource, {}, MessageIcon::Question);
        // Without showing an area the text is taken whatever the answer was.
        if (isTaken || !Show) takeSource();
    }
    if (!Show) return;
    RefreshSurface();
    SetFocusToBrowser();
}

/// Loads the deck from the text. Where that fails all files are as before and the view stays. A
/// deck without loss stays as it was opened where nothing was written. Its pristine copy, which its
/// areas are compared with, is made by LoadDeck.
void frmPrepare::takeSource()
{
    auto& document = session_.document;
    const bool isConverted = !losesNothing(document);
    if (!isConverted && !mScriptChanged) return;
    if (isConverted) namePristine(document);
    const auto first = document.deck.front();
    const KeptFile wml(document.workFiles, first.wmlDir + first.wmlFile);
    const KeptFile pristine(document.workFiles, first.pristineDir + first.pristineFile);
    auto text = textOf(document, *txtScript);
    if (isConverted) text += "\r\n";
    const auto mends = mendsMade(document);
    try {
        document.workFiles.write(first.wmlDir + first.wmlFile, text);
        if (isConverted) document.workFiles.write(first.pristineDir + first.pristineFile, text);
        LoadDeck(document, {first.deckFile, first.deckDir, first.wmlFile, first.wmlDir},
            first.surfaceKind);
    } catch (...) {
        wml.putBack();
        pristine.putBack();
        throw;
    }
    mendsMade_ += mends;
    surfaceShows_.clear();
    if (std::exchange(mScriptChanged, false)) mDocChanged = true;
    const int last = static_cast<int>(areaCount(document.deck)) - 1;
    document.currentArea = std::min(document.currentArea, last);
    if (session_.sourcePath.empty()) tellStored(); // the work files are others now
    dropStoredSource();
}

} // namespace quillmere
