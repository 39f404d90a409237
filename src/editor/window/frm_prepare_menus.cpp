// Menus and keys, as rows: name, caption, key, guards, form, action, menu. Held by
// frm_prepare_menus_test.cpp.

#include "editor/window/frm_prepare.h"
#include "editor/window/frm_prepare_commands.h"

#include "document/platform/word_ids.h"
#include "forms/text.h"
#include "project/deck_dialogs.h"
#include "project/deck_files.h"
#include "project/deck_names.h"
#include "project/recent_decks.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QShortcut>

namespace quillmere {
namespace {

constexpr const char* kNoForm = "";
constexpr auto kRecentName = "mnuRecentDeck";

struct SubmenuCaption {
    const char* menu;
    const char* caption;
};
constexpr SubmenuCaption kSubmenus[] = {
    {"mnuContext1InsertElements", "Element einfügen"},
    {"mnuContext1InsertImage", "Bild"},
};

} // namespace

const frmPrepare::Command frmPrepare::kMenuEntries[] = {
    {"mnuSave", "Speichern", "Ctrl+S", Guards::ToSave, kNoForm, &frmPrepare::mnuSave,
        "mnuContextSave"},
    {"mnuSaveAs", "Speichern unter", "Ctrl+Shift+S", Guards::ToSave, kNoForm,
        &frmPrepare::mnuSaveAs, "mnuContextSave"},
    {"mnuOpenTemplate", "Von Vorlage", "", Guards::None, "frmTemplateMultiWml",
        &frmPrepare::mnuOpenTemplate, "mnuContextOpen"},
    {"mnuNewWmlPage", "Leeres Dokument", "Ctrl+N", Guards::None, kNoForm,
        &frmPrepare::mnuNewWmlPage, "mnuContextOpen"},
    {"mnuInsertClipart", "Aus Clipart Galerie", "", Guards::None, "frmClipart",
        &frmPrepare::mnuInsertClipart, "mnuContextInsertImages"},
    {"mnuInsertImage", "Aus anderer Quelle", "", Guards::None, "ChooseWbmpDialog",
        &frmPrepare::mnuInsertImage, "mnuContextInsertImages"},
    {"mnuShowHelp", "Hilfe", "", Guards::None, kNoForm, &frmPrepare::ShowHelp, "mnuContextHelp"},
    {"mnuAboutQuillmere", "Info", "", Guards::None, "frmAboutQuillmere",
        &frmPrepare::mnuAboutQuillmere, "mnuContextHelp"},
    {"mnuMoreAboutQuillmere", "Links", "", Guards::None, kNoForm,
        &frmPrepare::mnuMoreAboutQuillmere, "mnuContextHelp"},
    {"mnuContext1Cut", "Ausschneiden", "", Guards::DeckAndSurface, kNoForm,
        &frmPrepare::mnuContextCut, "mnuContext1"},
    {"mnuContext1Copy", "Kopieren", "", Guards::DeckAndSurface, kNoForm,
        &frmPrepare::mnuContext1Copy, "mnuContext1"},
    {"mnuContext1Insert", "Einfügen", "", Guards::DeckAndSurface, kNoForm,
        &frmPrepare::mnuContext1Insert_Click, "mnuContext1"},
    {"mnuContext1FormatText", "Text formatieren", "", Guards::DeckAndSurface, "frmTextFormat",
        &frmPrepare::lblButtonTextFormat, "mnuContext1"},
    {"mnuContext1AreaInsert", "Bereich einfügen", "", Guards::DeckAndSurface, "frmArea",
        &frmPrepare::lblButtonArea, "mnuContext1"},
    {"mnuContext1AreaParameters", "Bereichseinstellungen", "", Guards::DeckAndSurface, "frmArea",
        &frmPrepare::mnuContext1AreaParameters, "mnuContext1"},
    {"mnuContext1InsertHyperlink", "Hyperlink", "", Guards::DeckAndSurface, "frmLinks",
        &frmPrepare::lblButtonLink, "mnuContext1InsertElements"},
    {"mnuContext1InsertOption", "Optionsfeld", "", Guards::DeckAndSurface, "frmOption",
        &frmPrepare::lblButtonOption, "mnuContext1InsertElements"},
    {"mnuContext1InsertTable", "Tabelle", "", Guards::DeckAndSurface, "frmTable",
        &frmPrepare::lblButtonTable, "mnuContext1InsertElements"},
    {"mnuInsertClipart2", "Aus Clipart Galerie", "", Guards::None, "frmClipart",
        &frmPrepare::mnuInsertClipart, "mnuContext1InsertImage"},
    {"mnuInsertImage2", "Aus anderer Quelle", "", Guards::None, "ChooseWbmpDialog",
        &frmPrepare::mnuInsertImage, "mnuContext1InsertImage"},
    {"mnuContext2Cut", "Ausschneiden", "", Guards::DeckAndSurface, kNoForm,
        &frmPrepare::mnuContextCut, "mnuContext2"},
    {"mnuContext2Copy", "Kopieren", "", Guards::DeckAndSurface, kNoForm,
        &frmPrepare::mnuContext2Copy, "mnuContext2"},
    {"mnuContext2Insert", "Einfügen", "", Guards::DeckAndSurface, kNoForm,
        &frmPrepare::mnuContext1Insert_Click, "mnuContext2"},
    {"mnuContext2FormatText", "Text formatieren", "", Guards::DeckAndSurface, "frmTextFormat",
        &frmPrepare::lblButtonTextFormat, "mnuContext2"},
    {"mnuContext2PrepareElement", "Element bearbeiten", "", Guards::DeckAndSurface, kNoForm,
        &frmPrepare::ondblclick, "mnuContext2"},
};

// Keys that no menu entry has. Those of the surface and of the source view are theirs.
const frmPrepare::Command frmPrepare::kKeys[] = {
    {"keyOpen", "", "Ctrl+O", Guards::None, kNoForm, &frmPrepare::lblButtonSeiteOpen},
    {"keyNextArea", "", "Ctrl+PgDown", Guards::OpenDeck, kNoForm, &frmPrepare::btnAreaNext_Click},
    {"keyPreviousArea", "", "Ctrl+PgUp", Guards::OpenDeck, kNoForm, &frmPrepare::btnAreaPrev_Click},
    {"keyHelp", "", "F1", Guards::None, kNoForm, &frmPrepare::ShowHelp},
};

void frmPrepare::makeMenus()
{
    for (const auto& [menu, caption] : kSubmenus)
        findChild<QMenu*>(menu)->setTitle(QString::fromUtf8(caption));
    for (const auto& entry : kMenuEntries) {
        auto* menu = findChild<QMenu*>(QLatin1String(entry.menu));
        auto* action = menu->addAction(QString::fromUtf8(entry.caption));
        action->setObjectName(QLatin1String(entry.control));
        connect(action, &QAction::triggered, this, [this, &entry] { run(entry); });
        if (*entry.hint == '\0') continue;
        action->setShortcut(QKeySequence(QLatin1String(entry.hint)));
        addAction(action); // a key works without its menu
    }
    mnuContext1->insertSeparator(findChild<QAction*>("mnuContext1FormatText"));
    mnuContext1->addMenu(mnuContext1InsertElements);
    mnuContext1InsertElements->addMenu(mnuContext1InsertImage);
    mnuContext2->insertSeparator(findChild<QAction*>("mnuContext2FormatText"));
}

void frmPrepare::makeKeys()
{
    for (const auto& key : kKeys) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(key.hint)), this);
        shortcut->setObjectName(QLatin1String(key.control));
        connect(shortcut, &QShortcut::activated, this, [this, &key] { run(key); });
    }
}

void frmPrepare::mnuSave()
{
    SaveCurrentDeck(session_);
}

void frmPrepare::mnuSaveAs()
{
    store();
    session_.gSurfaceActive = false;
    if (!SaveDeckAsDialog(session_)) return;
    rememberFile();
    showTitle();
    tellStored();
}

void frmPrepare::mnuOpenTemplate()
{
    store();
    openForm("frmTemplateMultiWml", {});
}

void frmPrepare::mnuNewWmlPage()
{
    store();
    session_.gSurfaceActive = false;
    if (hasForm("frmAskProjektDir")) return openForm("frmAskProjektDir", {});
    NewDeckDialog(session_);
}

void frmPrepare::mnuAboutQuillmere()
{
    openForm("frmAboutQuillmere", {});
}

void frmPrepare::mnuMoreAboutQuillmere() // NOLINT(readability-make-member-function-const): a row
{
    const auto file = session_.settings.ReadSetting("HyperlinkFile");
    if (!file.empty()) openOutside(shownPath(file));
}

void frmPrepare::ShowHelp()
{
    const auto* dialog = QApplication::activeModalWidget();
    const QWidget* here = mScriptView ? static_cast<QWidget*>(txtScript) : this;
    FormCall call;
    call.page = (dialog != nullptr ? dialog : here)->objectName();
    openForm("Help", call);
}

/// The decks that were open last stand below the ways to a new one.
void frmPrepare::showRecentDecks()
{
    for (auto* old : mnuContextOpen->findChildren<QAction*>(QLatin1String(kRecentName))) {
        mnuContextOpen->removeAction(old);
        old->deleteLater();
    }
    const auto paths = RecentDecks(session_.settings).paths();
    if (paths.empty()) return;
    auto* heading = mnuContextOpen->addSection(word(word::kRecentDecks));
    heading->setObjectName(QLatin1String(kRecentName));
    for (const auto& path : paths) {
        const QFileInfo file(shownPath(path));
        auto* entry = new QAction(file.dir().dirName() + " / " + file.fileName(), mnuContextOpen);
        entry->setObjectName(QLatin1String(kRecentName));
        entry->setToolTip(file.filePath());
        connect(
            entry, &QAction::triggered, this, [this, path] { trap([&] { openRecent(path); }); });
        mnuContextOpen->addAction(entry);
    }
}

void frmPrepare::openRecent(const std::string& path)
{
    store();
    const auto place = deckPlace(shownPath(path));
    OpenDocument(session_, place.name, place.directory);
}

void frmPrepare::ShowSurfaceMenu(QPoint point)
{
    if (!mContextMenuEnabled || !deckIsOpen() || mScriptView) return;
    const auto marked = markedElement();
    enableEntries(marked);
    (marked ? mnuContext2 : mnuContext1)->popup(point);
}

void frmPrepare::enableEntries(const std::optional<Marked>& marked)
{
    const auto enable = [this](const char* entry, bool isEnabled) {
        findChild<QAction*>(QLatin1String(entry))->setEnabled(isEnabled);
    };
    const bool hasText = objBrowserCard->selection().type != SurfaceSelection::Type::None;
    const bool isLink = marked && marked->kind == ElementKind::Link;
    enable("mnuContext1Copy", hasText);
    enable("mnuContext1FormatText", hasText);
    enable("mnuContext2FormatText", hasText && isLink);
    enable("mnuContext1Insert", canInsert());
    enable("mnuContext2Insert", canInsert());
}

bool frmPrepare::canInsert() const
{
    if (objBrowserCard->QueryStatus(surface_command::kItalic) == 1) return false;
    const auto* clip = QApplication::clipboard()->mimeData();
    return clip != nullptr && (clip->hasText() || clip->hasImage() || clip->hasHtml());
}

} // namespace quillmere
