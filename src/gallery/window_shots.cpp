// A shot is a row: a name, what is done ahead of it, and the form that is pictured.

#include "gallery/window_shots.h"

#include "app/settings.h"
#include "document/platform/disk_work_files.h"
#include "document/platform/mount_table.h"
#include "document/text/failure.h"
#include "editor/dialogs/frm_image.h"
#include "editor/dialogs/frm_justify.h"
#include "editor/window/deck_costs.h"
#include "editor/window/deck_mends.h"
#include "editor/window/element_forms.h"
#include "editor/window/frm_deck_changes.h"
#include "editor/window/frm_prepare.h"
#include "forms/frm_about_quillmere.h"
#include "forms/frm_assistent.h"
#include "forms/frm_input.h"
#include "forms/frm_message.h"
#include "forms/system_file_dialogs.h"
#include "forms/text.h"
#include "forms/window_messages.h"
#include "imageconv/alternative_text_painter_qt.h"
#include "imageconv/wbmp_display_copies.h"
#include "project/deck_files.h"
#include "project/frm_ask_projekt_dir.h"
#include "project/frm_deck_open.h"
#include "project/frm_open_from_projekt_dir.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTimer>

#include <algorithm>

namespace quillmere {
namespace {

constexpr int kScreens[] = {96, 192}; // dpi
constexpr int kAltTextPx = 11;
constexpr int kModalMs = 300; // until a dialog stands

QFont altTextFont()
{
    auto font = QApplication::font();
    font.setPixelSize(kAltTextPx);
    return font;
}

/// All that the windows stand on, with settings that are kept nowhere.
struct GallerySession {
    MemorySettings settings;
    WordResources words;
    FormResources forms;
    WindowMessages messages{words};
    SystemFileDialogs dialogs;
    DiskFileSystem files;
    MountTable drives;
    DiskWorkFiles workFiles;
    QtAlternativeTextPainter painter{altTextFont()};
    WbmpDisplayCopies copies{OutputRules(), painter};
    Session session{settings, messages, dialogs, files, drives, words, forms,
        DocumentSession{workFiles, copies, messages, settings, words, OutputRules()}};

    explicit GallerySession(const QString& skins)
    {
        settings.WriteSetting("Skins", corePath(skins + '/'));
        words.LoadWordResources(settings);
        forms.LoadFormResources(settings);
        ReadEditorSkins(session.skins, settings);
        messages.useSession(session);
    }
    /// Makes the skin `index` the active one and returns its name.
    QString chooseSkin(std::size_t index)
    {
        for (auto& skin : session.skins.EditorSkins)
            skin.Selected = 0;
        auto& chosen = session.skins.EditorSkins.at(index);
        chosen.Selected = SkinHead::kSelected;
        return shownText(chosen.Model.text()).toLower();
    }
};

void photograph(QWidget& window, const QString& path)
{
    QApplication::processEvents();
    for (const int dpi : kScreens) {
        const double scale = dpi / 96.0;
        QImage picture((QSizeF(window.size()) * scale).toSize(), QImage::Format_ARGB32);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        window.render(&picture, {}, {}, QWidget::DrawWindowBackground | QWidget::DrawChildren);
        const auto file = QStringLiteral("%1-%2.png").arg(path).arg(dpi);
        if (!picture.save(file))
            throw FileFailure("Das Bild " + file.toStdString() + " kann nicht geschrieben werden.");
    }
}

/// The main window with a deck of the examples, and what is clicked in it.
struct WindowShot {
    const char* name;
    const char* deck; ///< "": none is open
    std::vector<const char*> clicks;
};

const WindowShot kWindowShots[] = {
    {"leer", "", {}},
    {"erster", "hofladen", {}},
    {"tabelle", "hofladen", {"btnAreaNext"}},
    {"auswahl", "hofladen", {"btnAreaNext", "btnAreaNext"}},
    {"quelltext", "kino", {"btnScript"}},
};

void photographWindow(
    GallerySession& gallery, const WindowShot& shot, const QString& examples, const QString& path)
{
    frmPrepare window(gallery.session, gallery.workFiles);
    window.askAboutCosts = [](const DeckCosts&) { return CostsAnswer::Keep; };
    window.Form_Load();
    window.applySkin();
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    if (*shot.deck != '\0')
        OpenDocument(gallery.session, "index.wml", corePath(examples + '/' + shot.deck + '/'));
    for (const auto* button : shot.clicks)
        window.findChild<QAbstractButton*>(QLatin1String(button))->click();
    photograph(window, path);
}

/// A dialog over the deck of an example: what the caret stands behind, or what is marked.
struct FormShot {
    const char* name;
    const char* area; ///< the number of clicks on the next area, as digits
    const char* text;
    bool isMarked;
    const char* entry; ///< of the window's menus
};

constexpr FormShot kFormShots[] = {
    {"frmArea-neu", "", "", false, "mnuContext1AreaInsert"},
    {"frmArea", "", "", false, "mnuContext1AreaParameters"},
    {"frmTable-neu", "", "", false, "mnuContext1InsertTable"},
    {"frmTable", "1", "Kochäpfel", false, "mnuContext2PrepareElement"},
    {"frmOption", "", "", false, "mnuContext1InsertOption"},
    {"frmLinks", "", "", false, "mnuContext1InsertHyperlink"},
    {"frmTextFormat", "", "Hofladen", true, "mnuContext1FormatText"},
};

void photographModal(const QString& path)
{
    QTimer::singleShot(kModalMs, qApp, [path] {
        auto* form = QApplication::activeModalWidget();
        if (form == nullptr) return;
        photograph(*form, path);
        form->close();
    });
}

void photographForm(Form& form, const QString& path)
{
    form.loadTexts();
    form.show();
    photograph(form, path + form.objectName());
    form.close();
}

void photographDeckChanges(GallerySession& gallery, const QString& path)
{
    const std::string deck
        = "<wml><template><do type=\"prev\"><prev/></do></template>\n"
          "<card id=\"a\" title=\"Gem\xFCse\" ontimer=\"#b\"><timer value=\"50\"/>\n"
          "<p>M\xF6hren im Caf\xE9, <fieldset title=\"x\">2,40 \x80</fieldset>\n"
          "<input name=\"ort\" size=\"8\"/><input name=\"tag\" format=\"NN\"/></p></card></wml>";
    frmDeckChanges costs(
        gallery.session, costsOfSaving(gallery.session.document, deck, "/"), nullptr);
    photographForm(costs, path);
    frmDeckChanges mends(gallery.session,
        mendsOfFile("<wml>\n<card id=a>\n<p>Obst & Gem\xFCse <b><i>frisch</b></i>\n</card>\n"
                    "<CARD id=\"b\"><p>Brot</p></card></wml>"),
        nullptr);
    photographForm(mends, path + "ausbessern-");
}

/// The forms that stand on the open deck alone, and those of messages.
void photographPlainForms(Session& session, const QString& path)
{
    for (const auto kind :
        {Note::Option, Note::Image, Note::Plain, Note::ImageLayout, Note::SelectRepair}) {
        frmMessage note(session);
        note.SetInitializations(kind);
        photographForm(note, path + QString::number(static_cast<int>(kind)) + '-');
    }
    frmInput input(session);
    input.SetParameters(
        {"Neuer Ordner", "Der Ordner wird im Projekt angelegt.", "&Name:", "bilder"});
    photographForm(input, path);
    frmDeckOpen decks(session);
    decks.ShowTab("open");
    photographForm(decks, path);
    frmAssistent assistant(session);
    photographForm(assistant, path);
    frmAboutQuillmere about(session);
    photographForm(about, path);
    frmAskProjektDir place(session);
    photographForm(place, path);
    frmOpenFromProjektDir project(session);
    photographForm(project, path);
}

void photographForms(GallerySession& gallery, const QString& examples, const QString& path)
{
    frmPrepare window(gallery.session, gallery.workFiles);
    window.askAboutCosts = [](const DeckCosts&) { return CostsAnswer::Keep; };
    registerElementForms(window, gallery.session);
    window.Form_Load();
    window.show();
    QApplication::processEvents();
    OpenDocument(gallery.session, "index.wml", corePath(examples + "/hofladen/"));
    for (const auto& shot : kFormShots) {
        for (const char* digit = shot.area; *digit != '\0'; ++digit)
            window.findChild<QAbstractButton*>("btnAreaNext")->click();
        auto& surface = window.surface();
        surface.moveCursor(QTextCursor::Start);
        if (*shot.text != '\0') surface.find(QString::fromUtf8(shot.text));
        if (!shot.isMarked) surface.setCaretOffset(surface.caretOffset());
        photographModal(path + shot.name);
        window.findChild<QAction*>(QLatin1String(shot.entry))->trigger();
        for (const char* digit = shot.area; *digit != '\0'; ++digit)
            window.findChild<QAbstractButton*>("btnAreaPrev")->click();
    }
    frmJustify justify(gallery.session, window.surface(), &window);
    justify.SetInitializations();
    justify.show();
    photograph(justify, path + "frmJustify");
    frmImage image(gallery.session, window.surface(), &window);
    image.SetInitializations(true, {});
    image.show();
    photograph(image, path + "frmImage");
    photographPlainForms(gallery.session, path);
    window.hide();
}

} // namespace

void writeWindowShots(const QString& skins, const QString& examples, const QString& directory)
{
    QApplication::setCursorFlashTime(0); // the caret does not blink
    QDir().mkpath(directory);
    GallerySession gallery(skins);
    const auto count = gallery.session.skins.EditorSkins.size() - 1; // the last one is a spare
    for (std::size_t skin = 0; skin < count; ++skin) {
        const auto path = directory + "/fenster-" + gallery.chooseSkin(skin) + '-';
        for (const auto& shot : kWindowShots)
            photographWindow(gallery, shot, examples, path + shot.name);
        photographDeckChanges(gallery, path);
    }
    photographForms(gallery, examples, directory + "/form-");
}

} // namespace quillmere
