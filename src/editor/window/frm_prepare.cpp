// The window's life: start, activation, keys, end. Areas are in frm_prepare_areas.cpp, saving in
// frm_prepare_save.cpp, the source view in frm_prepare_source.cpp, tools and menus in
// frm_prepare_tools.cpp and frm_prepare_menus.cpp, the surface's events in
// frm_prepare_surface.cpp. Held by frm_prepare_tools_test.cpp and its neighbours.

#include "editor/window/frm_prepare.h"

#include "document/deck_replacement.h"
#include "document/platform/word_ids.h"
#include "editor/window/source_search_bar.h"
#include "forms/overlay.h"
#include "forms/text.h"
#include "forms/trap.h"
#include "project/deck_files.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

constexpr int kIdleMs = 1000;
constexpr int kYieldsAtEnd = 31;

const auto kProgramTitle = QStringLiteral("MORVANE Quillmere");

/// The word and the icon of a message by its number, from 1.
struct GuardMessage {
    int word = 0;
    MessageIcon icon = MessageIcon::None;
};
constexpr GuardMessage kGuardMessages[] = {
    {word::kNoDeckOpen, MessageIcon::None},
    {word::kNotInSourceView, MessageIcon::None},
    {word::kNothingToSave, MessageIcon::None},
    {word::kNotIntoTable, MessageIcon::Critical},
};

void yieldOften()
{
    for (int i = 0; i < kYieldsAtEnd; ++i)
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

/// All other windows of the program that stand open.
std::vector<QWidget*> otherForms(const QWidget& window)
{
    std::vector<QWidget*> others;
    for (auto* widget : QApplication::topLevelWidgets())
        if (widget != &window && widget->isVisible() && qobject_cast<QDialog*>(widget) != nullptr)
            others.push_back(widget);
    return others;
}

} // namespace

frmPrepare::frmPrepare(Session& session, WorkFiles& files, QWidget* parent)
    : SkinWindow(parent)
    , session_(session)
    , objBrowserCard(new DesignSurface(files, this))
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
    setObjectName(QStringLiteral("frmPrepare"));
    setWindowTitle(kProgramTitle);
    objBrowserCard->setObjectName(QStringLiteral("objBrowserCard"));
    session_.window = this;
    session_.document.surface = objBrowserCard;
    askAboutCosts
        = [this](const DeckCosts& costs) { return frmDeckChanges::ask(session_, costs, this); };
    askAboutMends = [this](const QStringList& mends) {
        return frmDeckChanges::mayMend(session_, mends, this);
    };
    openOutside
        = [](const QString& address) { QDesktopServices::openUrl(QUrl::fromUserInput(address)); };
    makeTools();
    makeMenus();
    layOut();
    makeKeys();
    wire();
}

frmPrepare::~frmPrepare()
{
    if (session_.window == this) session_.window = nullptr;
    if (session_.document.devices.front() == &pageStyle_)
        session_.document.devices.front() = nullptr;
    if (session_.document.surface == objBrowserCard) session_.document.surface = nullptr;
}

void frmPrepare::trap(const std::function<void()>& routine)
{
    trapped(session_.messages, routine);
}

QString frmPrepare::word(int id, std::string_view gap) const
{
    return shownText(session_.words.GetWord(id, {gap}));
}

void frmPrepare::registerForm(const std::string& name, FormOpener opener)
{
    forms_[name] = std::move(opener);
}

void frmPrepare::wire()
{
    const auto clicked = [this](QPushButton* button, void (frmPrepare::*routine)()) {
        connect(button, &QPushButton::clicked, this,
            [this, routine] { trap([&] { (this->*routine)(); }); });
    };
    clicked(btnAreaNext, &frmPrepare::btnAreaNext_Click);
    clicked(btnAreaPrev, &frmPrepare::btnAreaPrev_Click);
    clicked(btnAreaOne, &frmPrepare::btnAreaOne_Click);
    clicked(btnScript, &frmPrepare::btnScript_Click);
    clicked(btnShowProjekt, &frmPrepare::btnShowProjekt_Click);
    connect(txtScript, &QPlainTextEdit::textChanged, this, &frmPrepare::txtScript_Change);
    connect(txtScript, &SourceEdit::aboutToBreak, this, &frmPrepare::txtScript_KeyPress);
    idle_.setSingleShot(true);
    idle_.setInterval(kIdleMs);
    connect(&idle_, &QTimer::timeout, this, &frmPrepare::storeWhenIdle);
    wireSurface();
}

void frmPrepare::Form_Load()
{
    OverlayForm(*this, session_);
    takeTexts();
    session_.document.deck.assign(1, {});
    session_.document.currentArea = 0;
    mDocChanged = false;
    mRefreshGuard = 0;
    SetScriptUndoFlagsBack();
    deckIsNew_ = false;
    RefreshSurface();
    mFirstActivate = true;
    mContextMenuEnabled = true;
}

/// Words of controls that know no resources.
void frmPrepare::takeTexts()
{
    const auto of = [&](std::string_view hit, std::string_view count) {
        return shownText(session_.words.GetWord(word::kHitOf, {hit, count}));
    };
    sourceHint_ = btnScript->toolTip();
    txtScript->setSearchTexts({word(word::kNoHit), word(word::kOneHit), word(word::kHits, "%1"),
        of("%1", "%2"), word(word::kReplaced, "%1")});
}

void frmPrepare::showCharacterCount(int count)
{
    lblCharCount->setText(word(word::kCharacterCount, std::to_string(count)));
}

bool frmPrepare::event(QEvent* event)
{
    if (dropped(*event)) return true;
    const bool handled = SkinWindow::event(event);
    if (event->type() == QEvent::WindowActivate) trap([this] { Form_Activate(); });
    return handled;
}

void frmPrepare::Form_Activate()
{
    mActivated = true;
    if (std::exchange(mFirstActivate, false)) {
        applySurfaceLook();
        if (firstActivation) QTimer::singleShot(0, this, [this] { trap(firstActivation); });
    }
    if (!deckIsOpen()) {
        disableNavigation();
        txtScript->hide();
    }
    SetFocusToBrowser();
}

void frmPrepare::SetFocusToBrowser()
{
    if (!deckIsOpen() || mScriptView || !otherForms(*this).empty()) return;
    objBrowserCard->setFocus();
    session_.gSurfaceActive = true;
}

void frmPrepare::ShowMsg(int Index)
{
    if (Index < 1 || Index > static_cast<int>(std::size(kGuardMessages))) return;
    const auto& message = kGuardMessages[static_cast<std::size_t>(Index) - 1];
    session_.messages.show(message.word, {}, message.icon);
}

void frmPrepare::showTitle()
{
    const auto name = deckIsOpen() ? shownPath(session_.document.deck.front().deckFile) : QString();
    const auto changed = docChanged() ? QStringLiteral(" *") : QString();
    lblDeckName->setText(name + changed);
    setWindowTitle(name.isEmpty() ? kProgramTitle : name + changed + " - " + kProgramTitle);
}

// Escape ends the program, as a person of this program knows it; changes are asked for. Not the
// Escape that closed a dialog and is still held.
void frmPrepare::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && txtScript->isSearching() && txtScript->isVisible())
        txtScript->closeSearch();
    else if (event->key() == Qt::Key_Escape && !event->isAutoRepeat())
        close();
    else if (event->key() == Qt::Key_F12)
        showNormal();
    else
        QWidget::keyPressEvent(event);
}

void frmPrepare::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMaximized()) showNormal();
}

// What cannot be saved keeps the window open.
void frmPrepare::closeEvent(QCloseEvent* event)
{
    if (!trapped(session_.messages, [this] { Form_Unload(); })) return event->ignore();
    QWidget::closeEvent(event);
}

void frmPrepare::Form_Unload()
{
    for (auto* form : otherForms(*this))
        form->close();
    if (mCloseNow) return ClearWindowOutline(*this, outline_);
    if (deckIsOpen()) AskAndSaveTmpWmlDocToWmlDoc(true);
    idle_.stop(); // not ahead of a save that may fail and leave the window
    DeckReplacement emptied(session_.document);
    session_.document.deck.resize(1);
    emptied.commit();
    dropStoredSource();
    yieldOften();
    const auto& last = session_.lastImage;
    if (!last.displayFile.empty())
        session_.document.workFiles.remove(last.displayDir + last.displayFile);
    ClearWindowOutline(*this, outline_);
    yieldOften();
}

} // namespace quillmere
