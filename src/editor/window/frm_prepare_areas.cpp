// Showing areas and moving between them. The surface is only ever stored into the file that it was
// loaded from, so that no area gets another one's text, whatever failed on the way. Held by
// frm_prepare_areas_test.cpp.

#include "editor/window/frm_prepare.h"

#include "document/card_attributes.h"
#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/images.h"
#include "document/platform/word_ids.h"
#include "forms/text.h"
#include "project/deck_files.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

// Numbers of texts of the form's resources.
constexpr std::int16_t kTextSource = 2;
constexpr std::int16_t kTextOf = 4;

/// Where in `now` ends what differs from `before`.
std::size_t behindChange(std::string_view before, std::string_view now)
{
    const auto same = std::ranges::mismatch(before, now).in1 - before.begin();
    const auto most = std::min(before.size(), now.size()) - static_cast<std::size_t>(same);
    std::size_t tail = 0;
    while (tail < most && before[before.size() - 1 - tail] == now[now.size() - 1 - tail])
        ++tail;
    return now.size() - tail;
}

} // namespace

bool frmPrepare::deckIsOpen() const
{
    return areaCount(session_.document.deck) > 0 && isDeckOpen(session_);
}

DeckRecord& frmPrepare::shownArea()
{
    return areaRecord(session_.document, static_cast<std::size_t>(CurArea()));
}

std::string frmPrepare::shownDesignPath()
{
    const auto& area = shownArea();
    return area.designDir + area.designFile;
}

void frmPrepare::store()
{
    const bool isShown = deckIsOpen() && !mScriptView && session_.document.surface != nullptr;
    if (!isShown || surfaceShows_ != shownDesignPath()) return;
    idle_.stop();
    SaveSurface(session_.document, static_cast<std::size_t>(CurArea()));
    tellStored();
}

// Who wants it while it runs, such as a timer during a wait, gets it once more behind that.
void frmPrepare::RefreshSurface()
{
    refreshWanted_ = true;
    if (mRefreshGuard >= 1) return;
    while (std::exchange(refreshWanted_, false)) {
        const QScopedValueRollback guard(mRefreshGuard, mRefreshGuard + 1);
        refresh();
    }
    if (!deckIsNew_ || !deckIsOpen()) return;
    rememberFile();
    QTimer::singleShot(0, this, [this] { trap([this] { warnOfCosts(); }); });
}

void frmPrepare::refresh()
{
    mScriptView = false;
    dropStoredSource();
    btnAreaOne->setText({});
    disableNavigation();
    txtScript->hide();
    showNavigation();
    showTitle();
    if (deckIsOpen())
        showArea();
    else
        showNoArea();
    applySurfaceLook();
    waitForSurface(session_.document);
}

void frmPrepare::disableNavigation()
{
    for (auto* button : {btnScript, btnAreaPrev, btnAreaNext, btnAreaOne, btnShowProjekt})
        button->setEnabled(false);
    lblToolTipForbtnAreaPrev->hide();
    lblToolTipAreaNext->hide();
}

void frmPrepare::showNavigation()
{
    const bool isOpen = deckIsOpen();
    const int areas = static_cast<int>(areaCount(session_.document.deck));
    const bool isLast = CurArea() + 1 >= areas, isFirst = CurArea() < 1;
    lblToolTipAreaNext->setVisible(isLast && isOpen);
    btnAreaNext->setEnabled(!isLast);
    lblToolTipForbtnAreaPrev->setVisible(isFirst && isOpen);
    btnAreaPrev->setEnabled(!isFirst);
    if (!isOpen) return;
    btnShowProjekt->setEnabled(true);
    btnAreaOne->setEnabled(true);
    btnAreaOne->setText(
        QStringLiteral("%1 %2 %3").arg(CurArea() + 1).arg(resourceText(kTextOf, "von")).arg(areas));
}

void frmPrepare::showArea()
{
    btnScript->setEnabled(true);
    btnScript->setText(resourceText(kTextSource, "Quelltext"));
    showCaptions();
    const auto path = shownDesignPath();
    if (surfaceShows_.empty()) objBrowserCard->hide(); // until it shows something of this deck
    objBrowserCard->setRules(OutputRules(losesNothing(session_.document)));
    objBrowserCard->LoadURL(path);
    surfaceShows_ = path;
    objBrowserCard->show();
    waitForSurface(session_.document);
    if (shownArea().history.size() < 2)
        PushUndo(session_.document, -1, objBrowserCard->DocumentHTML());
    surfaceChanged();
}

void frmPrepare::showNoArea()
{
    surfaceShows_.clear();
    objBrowserCard->NewDocument();
    waitForSurface(session_.document);
    objBrowserCard->hide();
    lblCurAreaCaption->setText(word(word::kNoDeckCaption));
    lblCharCount->clear();
}

void frmPrepare::showCaptions()
{
    const auto title
        = GetCardAttributes(session_.document, static_cast<std::size_t>(CurArea())).title;
    lblCurAreaCaption->setText(word(word::kAreaCaption) + ' ' + QString::number(CurArea() + 1)
        + word(word::kAreaCaptionEnd) + ' ' + shownText(title));
}

/// Shows another area. Where that fails the one that the surface shows stays the current one.
void frmPrepare::goToArea(int area)
{
    store();
    if (area < 0 || area >= static_cast<int>(areaCount(session_.document.deck))) return;
    const int before = std::exchange(session_.document.currentArea, area);
    showNavigation();
    try {
        SavePreparedDokumentAndShowArea(true);
    } catch (...) {
        // a source that was taken over may have left fewer areas
        const int last = static_cast<int>(areaCount(session_.document.deck)) - 1;
        session_.document.currentArea = std::clamp(before, 0, std::max(last, 0));
        showNavigation();
        throw;
    }
}

void frmPrepare::btnAreaNext_Click()
{
    goToArea(CurArea() + 1);
}

void frmPrepare::btnAreaPrev_Click()
{
    goToArea(CurArea() - 1);
}

void frmPrepare::btnAreaOne_Click()
{
    store();
    SavePreparedDokumentAndShowArea(true);
}

void frmPrepare::btnShowProjekt_Click()
{
    openForm("frmOpenFromProjektDir", {});
}

/// Not of a surface that shows another text, such as behind an area that could not be loaded.
void frmPrepare::keepUndoState()
{
    if (!deckIsOpen() || mScriptView || surfaceShows_ != shownDesignPath()) return;
    const auto& shown = objBrowserCard->DocumentHTML();
    if (shownArea().history.back() != shown) PushUndo(session_.document, -1, shown);
}

void frmPrepare::undoOnSurface()
{
    keepUndoState();
    auto& history = shownArea().history;
    if (history.size() < 3) return; // entry 0 is no state, and the first state cannot be passed
    history.pop_back();
    waitForSurface(session_.document);
    const auto caret = behindChange(objBrowserCard->DocumentHTML(), history.back());
    objBrowserCard->setDocumentHTML(history.back());
    objBrowserCard->setCaretOffset(caret);
    waitForSurface(session_.document);
    store();
    if (shownArea().imageCursor >= 0) ReadImageTags(session_.document);
    setDocChanged(true);
}

/// The surface takes back what was typed in steps of its own; states behind the one that comes
/// back go from the list. Where the surface has no step, the list has.
void frmPrepare::undoOfKey()
{
    const auto before = objBrowserCard->DocumentHTML();
    objBrowserCard->undo();
    if (objBrowserCard->DocumentHTML() == before) return undoOnSurface();
    auto& history = shownArea().history;
    const auto same
        = std::ranges::find(history.rbegin(), history.rend() - 1, objBrowserCard->DocumentHTML());
    if (same != history.rend() - 1)
        history.erase(same.base(), history.end());
    else
        keepUndoState();
}

} // namespace quillmere
