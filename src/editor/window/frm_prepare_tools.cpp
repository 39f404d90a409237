// The tools. Each is a row of one table: button, guards, form, action. Held by
// frm_prepare_tools_test.cpp.

#include "editor/window/frm_prepare.h"
#include "editor/window/frm_prepare_commands.h"

#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/platform/word_ids.h"
#include "forms/text.h"
#include "project/deck_dialogs.h"
#include "project/deck_files.h"

#include <array>

namespace quillmere {

namespace {

constexpr const char* kAnyForm = "";
constexpr std::string_view kWithoutPicture = "Morvane";

constexpr int kToolWidth = 70, kToolHeight = 64;
constexpr int kToolStep = 72;
constexpr int kDeckTools = 9; // of kTools, in the bar above; then those of the elements

/// Places of the tools without a skin: a row above and a column at the left.
QRect toolPlace(int index)
{
    if (index < kDeckTools) return {28 + index * kToolStep, 66, kToolWidth, kToolHeight};
    return {28, 156 + (index - kDeckTools) * kToolHeight, kToolWidth, kToolHeight};
}

} // namespace

const frmPrepare::Command frmPrepare::kTools[] = {
    {"SeiteNew", "Neu", "Neues Dokument anlegen oder ein zuletzt geöffnetes öffnen", Guards::None,
        kAnyForm, &frmPrepare::lblButtonSeiteNew},
    {"SeiteOpen", "Öffnen", "Dokument öffnen (Strg+O)", Guards::None, kAnyForm,
        &frmPrepare::lblButtonSeiteOpen},
    {"SeiteSave", "Sichern", "Dokument speichern (Strg+S)", Guards::ToSave, kAnyForm,
        &frmPrepare::lblButtonSeiteSave},
    {"Undo", "Zurück", "Letzte Änderung zurücknehmen (Strg+Z)", Guards::OpenDeck, kAnyForm,
        &frmPrepare::lblButtonUndo},
    {"Previour", "Vorschau", "Dokument auf einem Telefon ansehen", Guards::None, "frmPreview",
        &frmPrepare::lblButtonPreviour},
    {"BildKonverter", "Konverter", "Bilder in WBMP umwandeln", Guards::None,
        "frmPicKonvChoiceImage", &frmPrepare::lblButtonBildKonverter},
    {"Upload", "Upload", "Projekt auf den Server übertragen", Guards::DeckAndSurface,
        "frmUploadExtended", &frmPrepare::lblButtonUpload},
    {"System", "System", "Einstellungen", Guards::None, "frmSystem", &frmPrepare::lblButtonSystem},
    {"Help", "Hilfe", "Hilfe und Informationen (F1)", Guards::None, kAnyForm,
        &frmPrepare::lblButtonHelp},
    {"Area", "Bereich", "Bereich einfügen", Guards::DeckAndSurface, "frmArea",
        &frmPrepare::lblButtonArea},
    {"Table", "Tabelle", "Tabelle einfügen", Guards::DeckAndSurface, "frmTable",
        &frmPrepare::lblButtonTable},
    {"Image", "Bild", "Bild einfügen", Guards::DeckAndSurface, kAnyForm,
        &frmPrepare::lblButtonImage},
    {"Link", "Link", "Hyperlink einfügen", Guards::DeckAndSurface, "frmLinks",
        &frmPrepare::lblButtonLink},
    {"Option", "Auswahl", "Optionsfeld einfügen", Guards::DeckAndSurface, "frmOption",
        &frmPrepare::lblButtonOption},
    {"TextFormat", "Format", "Markierten Text formatieren", Guards::DeckAndSurface, "frmTextFormat",
        &frmPrepare::lblButtonTextFormat},
    {"Justify", "Ausrichten", "Absatz ausrichten", Guards::DeckAndSurface, "frmJustify",
        &frmPrepare::lblButtonJustify},
    {"Morvane", "Quillmere", "Zur Seite des Herstellers", Guards::None, kAnyForm,
        &frmPrepare::lblButtonMorvane},
};

ToolLabel* frmPrepare::makeLabel(const char* name)
{
    auto* picture = name == kWithoutPicture
        ? nullptr
        : new ToolPicture(QLatin1String("picButton") + QLatin1String(name), this);
    return new ToolLabel(QLatin1String("lblButton") + QLatin1String(name), picture, this);
}

void frmPrepare::makeTools()
{
    int index = 0;
    for (const auto& tool : kTools) {
        auto* label = makeLabel(tool.control);
        label->setText(QString::fromUtf8(tool.caption));
        label->setToolTip(QString::fromUtf8(tool.hint));
        label->setGeometry(toolPlace(index++));
        connect(label, &ToolLabel::clicked, this, [this, &tool] { run(tool); });
    }
    auto* move = makeLabel("Move");
    move->setFocusPolicy(Qt::NoFocus);
    move->setCursor(Qt::SizeAllCursor);
    connect(move, &ToolLabel::pressed, this, [this] { DragWindow(*this); });
    connect(makeLabel("Minimize"), &ToolLabel::clicked, this, &QWidget::showMinimized);
    connect(makeLabel("Close"), &ToolLabel::clicked, this, &QWidget::close);
}

bool frmPrepare::allows(Guards guards)
{
    if (guards == Guards::None) return true;
    if (!deckIsOpen()) {
        ShowMsg(guards == Guards::ToSave ? 3 : 1);
        return false;
    }
    if (guards != Guards::DeckAndSurface || !mScriptView) return true;
    ShowMsg(2);
    return false;
}

void frmPrepare::run(const Command& command)
{
    trap([&] {
        if (!allows(command.guards)) return;
        const std::string_view form = command.form;
        if (!form.empty() && !hasForm(form)) return tellMissing(QString::fromUtf8(command.caption));
        (this->*command.action)();
    });
}

void frmPrepare::tellMissing(const QString& caption)
{
    session_.messages.show(word::kToolMissing, std::array{coreText(caption)}, MessageIcon::None);
}

void frmPrepare::openForm(const std::string& name, const FormCall& call)
{
    session_.gSurfaceActive = false;
    const auto form = forms_.find(name);
    if (form == forms_.end()) return tellMissing(QString::fromStdString(name));
    keepUndoState(); // what the mouse changed
    form->second(call);
}

Hit frmPrepare::hitTest(std::string_view startTag, std::string_view endTag, bool refresh)
{
    const auto text = ReadDesignText(session_.document, static_cast<std::size_t>(CurArea()));
    return hits_.HitTest(startTag, endTag, text, objBrowserCard->selection(), refresh);
}

/// Nothing goes into a table. A hit test for tables tells the table's begin, which does not lie in
/// it, and so the caret in a cell counts as well.
bool frmPrepare::refusesTable(const Hit& hit, ElementKind kind)
{
    const auto text = ReadDesignText(session_.document, static_cast<std::size_t>(CurArea()));
    const bool isInCell = kind == ElementKind::Table && hit.Inside
        && objBrowserCard->selection().type != SurfaceSelection::Type::Control;
    const OutputRules rules(losesNothing(session_.document));
    if (!isInCell && !IsInsideTable(text, hit.position, rules.maxTextLength())) return false;
    ShowMsg(4);
    return true;
}

/// Store, hit test, and the form for a new element, which does not go into a table.
void frmPrepare::insertElement(ElementKind kind, const char* form)
{
    const auto& tags = tagsOf(kind);
    store();
    const auto hit = hitTest(tags.start, tags.end, true);
    if (refusesTable(hit, kind)) return;
    const bool isNoted
        = kind == ElementKind::Option && isYes(session_.settings, "ShowOptionMessage");
    if (isNoted) (void)session_.messages.showNote(Note::Option);
    openForm(form, {true, hit});
}

void frmPrepare::lblButtonArea()
{
    store();
    openForm("frmArea", {});
}

void frmPrepare::mnuContext1AreaParameters()
{
    store();
    openForm("frmArea", {false, {}});
}

void frmPrepare::lblButtonTable()
{
    insertElement(ElementKind::Table, "frmTable");
}

void frmPrepare::lblButtonOption()
{
    insertElement(ElementKind::Option, "frmOption");
}

void frmPrepare::lblButtonLink()
{
    insertElement(ElementKind::Link, "frmLinks");
}

void frmPrepare::lblButtonImage()
{
    store();
    popUp(*mnuContextInsertImages, "Image");
}

void frmPrepare::mnuInsertClipart()
{
    insertElement(ElementKind::Image, "frmClipart");
}

void frmPrepare::mnuInsertImage()
{
    insertElement(ElementKind::Image, "ChooseWbmpDialog");
}

void frmPrepare::lblButtonTextFormat()
{
    if (objBrowserCard->selection().type == SurfaceSelection::Type::None)
        return session_.messages.show(word::kNoTextSelected, {}, MessageIcon::Warning);
    store();
    openForm("frmTextFormat", {true, hitTest("<b", "</b", true)});
}

void frmPrepare::lblButtonJustify()
{
    store();
    openForm("frmJustify", {true, hitTest("<p align='left", "</p", true)});
}

void frmPrepare::lblButtonPreviour()
{
    if (deckIsOpen()) AskAndSaveTmpWmlDocToWmlDoc(false);
    openForm("frmPreview", {});
}

void frmPrepare::lblButtonUpload()
{
    AskAndSaveTmpWmlDocToWmlDoc(false);
    openForm("frmUploadExtended", {});
}

void frmPrepare::lblButtonBildKonverter()
{
    FormCall call;
    if (deckIsOpen() && !mScriptView) {
        store();
        call.hit = hitTest("<img", "", true);
    }
    openForm("frmPicKonvChoiceImage", call);
}

void frmPrepare::lblButtonSystem()
{
    openForm("frmSystem", {});
}

void frmPrepare::lblButtonUndo()
{
    if (mScriptView)
        undoInSource();
    else
        undoOnSurface();
}

void frmPrepare::lblButtonSeiteSave()
{
    popUp(*mnuContextSave, "SeiteSave");
}

void frmPrepare::lblButtonSeiteOpen()
{
    store();
    session_.gSurfaceActive = false;
    OpenDeckDialog(session_);
}

void frmPrepare::lblButtonSeiteNew()
{
    showRecentDecks();
    popUp(*mnuContextOpen, "SeiteNew");
}

void frmPrepare::lblButtonHelp()
{
    popUp(*mnuContextHelp, "Help");
}

// NOLINTNEXTLINE(readability-make-member-function-const): the table's routines are of one type
void frmPrepare::lblButtonMorvane()
{
    const auto page = session_.settings.ReadSetting("MorvaneHomepage");
    if (!page.empty()) openOutside(shownText(page));
}

} // namespace quillmere
