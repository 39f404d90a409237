// What the person does on the surface. Held by frm_prepare_menus_test.cpp.

#include "editor/window/frm_prepare.h"

#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/text/windows1252.h"
#include "editor/page/attribute_values.h"
#include "editor/surface_clipboard.h"
#include "forms/text.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>

#include <algorithm>

namespace quillmere {
namespace {

/// The form that changes an element of each kind.
struct ElementForm {
    ElementKind kind;
    const char* form;
    const char* caption;
};
constexpr ElementForm kElementForms[] = {
    {ElementKind::Option, "frmOption", "Optionsfeld"},
    {ElementKind::Link, "frmLinks", "Link"},
    {ElementKind::Table, "frmTable", "Tabelle"},
    {ElementKind::Image, "frmImage", "Bild"},
};

/// The deck among the files that are dropped; "" where there is none.
QString droppedDeck(const QMimeData* clip)
{
    if (clip == nullptr) return {};
    for (const auto& url : clip->urls())
        if (url.isLocalFile() && url.toLocalFile().endsWith(".wml", Qt::CaseInsensitive))
            return url.toLocalFile();
    return {};
}

std::string displayPath(const ImageEntry& image)
{
    return image.displayDir + image.displayFile;
}

/// The entry whose display copy is `path`, ignoring case.
std::optional<ImageEntry> findImage(const std::vector<ImageEntry>& images, std::string_view path)
{
    const auto found = std::ranges::find_if(images, [&](const ImageEntry& image) {
        return !image.displayFile.empty() && equalIgnoringCase(displayPath(image), path);
    });
    return found == images.end() ? std::nullopt : std::optional(*found);
}

} // namespace

void frmPrepare::wireSurface()
{
    const auto* surface = objBrowserCard;
    connect(surface, &DesignSurface::onkeypress, this, &frmPrepare::onkeypress);
    connect(surface, &DesignSurface::onkeyup, this, &frmPrepare::onkeyup);
    connect(surface, &DesignSurface::onmousedown, this, &frmPrepare::onmousedown);
    connect(surface, &DesignSurface::onmousemove, this, [this] { session_.gSurfaceActive = true; });
    connect(surface, &DesignSurface::ondblclick, this, [this] { trap([this] { ondblclick(); }); });
    connect(surface, &DesignSurface::ShowContextMenu, this,
        [this](QPoint point) { trap([&] { ShowSurfaceMenu(point); }); });
    connect(surface, &DesignSurface::changed, this, &frmPrepare::surfaceChanged);
    connect(surface, &DesignSurface::elementMovedIntoTable, this, [this] { ShowMsg(4); });
    connect(surface, &DesignSurface::failed, this,
        [this](const QString& text) { session_.messages.ShowCriticalError(text); });
    objBrowserCard->installEventFilter(this);
    objBrowserCard->viewport()->installEventFilter(this);
    txtScript->viewport()->installEventFilter(this);
    setAcceptDrops(true);
}

void frmPrepare::onkeypress()
{
    setDocChanged(true);
    session_.gSurfaceActive = true;
    mKeyPressed = true;
}

void frmPrepare::onkeyup()
{
    if (std::exchange(mKeyPressed, false)) keepUndoState();
}

void frmPrepare::onmousedown(const Element& source)
{
    session_.gSurfaceActive = true;
    mImageIndex = 0;
    mMarkedImage.reset();
    mMarkedInput.reset();
    mMarkedTable.reset();
    if (deckIsOpen()) markElement(source);
}

/// The picture is marked only where the area's list has it.
void frmPrepare::markElement(const Element& source)
{
    if (source.tag == "input") mMarkedInput = source;
    if (source.tag == "table") mMarkedTable = source;
    if (source.tag != "img") return;
    const auto& text = objBrowserCard->DocumentHTML();
    const auto path = lowerCase(picturePath(pictureSource(source.source.in(text))));
    const auto& images = shownArea().images;
    const auto found = std::ranges::find_if(images, [&](const ImageEntry& image) {
        return !image.displayFile.empty() && lowerCase(displayPath(image)) == path;
    });
    if (found == images.end()) return;
    mImageIndex = static_cast<int>(found - images.begin());
    mMarkedImage = source;
}

void frmPrepare::CheckElementMovedIntoTable(bool& Undone)
{
    Undone = objBrowserCard->CheckElementMovedIntoTable();
}

std::optional<frmPrepare::Marked> frmPrepare::markedElement()
{
    store();
    bool refresh = true;
    for (const auto& tags : kElementTags) {
        const auto hit = hitTest(tags.start, tags.end, std::exchange(refresh, false));
        if (hit.Inside) return Marked{tags.kind, hit};
    }
    return std::nullopt;
}

void frmPrepare::ondblclick()
{
    if (!deckIsOpen()) return;
    const auto marked = markedElement();
    if (!marked) return;
    const auto* row = std::ranges::find(kElementForms, marked->kind, &ElementForm::kind);
    if (!hasForm(row->form)) return tellMissing(QString::fromUtf8(row->caption));
    openForm(row->form, {false, marked->hit});
}

void frmPrepare::mnuContextCut()
{
    objBrowserCard->ExecCommand(surface_command::kCut);
    keepUndoState();
    store();
}

void frmPrepare::mnuContext1Copy()
{
    objBrowserCard->ExecCommand(surface_command::kCopy);
}

void frmPrepare::mnuContext2Copy()
{
    const auto marked = markedElement();
    if (!marked) return;
    const auto text = ReadDesignText(session_.document, static_cast<std::size_t>(CurArea()));
    const auto markup = elementMarkup(text, marked->hit.position, tagsOf(marked->kind));
    QApplication::clipboard()->setText(shownText(markup));
}

void frmPrepare::mnuContext1Insert_Click()
{
    const QScopedValueRollback menus(mContextMenuEnabled, false);
    store();
    const auto hit = hitTest("<!--option", "<!--/option", true);
    const auto* clip = QApplication::clipboard()->mimeData();
    const auto text = clip != nullptr && clip->hasText() ? coreText(clip->text()) : std::string();
    const auto kind = elementIn(text);
    if (!kind) return insertClip();
    if (*kind == ElementKind::Image) takePicture(text);
    insertAsElement(*kind, text, hit);
}

void frmPrepare::insertAsElement(ElementKind kind, const std::string& clip, const Hit& hit)
{
    const auto area = static_cast<std::size_t>(CurArea());
    const auto text = ReadDesignText(session_.document, area);
    const OutputRules rules(losesNothing(session_.document));
    const auto paste = pasteElement(text, hit.position, clip, kind, rules);
    if (paste.tableTestAt > 0 && IsInsideTable(text, paste.tableTestAt, rules.maxTextLength()))
        ShowMsg(4);
    keepUndoState();
    WriteDesignText(session_.document, area, paste.design);
    setDocChanged(true);
    RefreshSurface();
    objBrowserCard->setCaretOffset(paste.end);
    keepUndoState();
    tellStored();
}

void frmPrepare::insertClip()
{
    if (objBrowserCard->QueryStatus(surface_command::kItalic) == 1) return;
    objBrowserCard->ExecCommand(surface_command::kRemoveFormat);
    objBrowserCard->ExecCommand(surface_command::kPaste);
    keepUndoState();
    store();
}

/// Gives the shown area an entry of the pasted picture, as some area has it or the image dialog
/// handed it over last. Without one the picture goes in all the same.
void frmPrepare::takePicture(const std::string& clip)
{
    const auto source = std::string(picturePath(pictureSource(clip)));
    if (source.empty()) return;
    std::optional<ImageEntry> entry;
    for (const auto& area : session_.document.deck)
        if (!entry) entry = findImage(area.images, source);
    if (!entry) entry = findImage({session_.lastImage}, source);
    auto& images = shownArea().images;
    if (entry && !findImage(images, source)) {
        images.back() = *entry;
        images.emplace_back();
        shownArea().imageIndex = {};
    }
}

/// Markup of the surface's own clips goes in as it is; what was copied as text is told apart.
void frmPrepare::pasteByKey()
{
    const auto* clip = QApplication::clipboard()->mimeData();
    if (clip != nullptr && clip->hasFormat(QLatin1String(kDesignMimeType)))
        objBrowserCard->paste();
    else
        mnuContext1Insert_Click();
    keepUndoState();
}

/// Keys that the window handles in the surface's place.
bool frmPrepare::surfaceKey(QKeyEvent& event)
{
    if (!deckIsOpen()) return false;
    const bool isUndo = event.matches(QKeySequence::Undo);
    if (!isUndo && !event.matches(QKeySequence::Paste)) return false;
    trap([&] { isUndo ? undoOfKey() : pasteByKey(); });
    event.accept();
    return true;
}

bool frmPrepare::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == objBrowserCard && event->type() == QEvent::KeyPress)
        return surfaceKey(static_cast<QKeyEvent&>(*event));
    if (watched == objBrowserCard->viewport() && event->type() == QEvent::Leave)
        session_.gSurfaceActive = false;
    const bool isView = watched == objBrowserCard->viewport() || watched == txtScript->viewport();
    return isView && dropped(*event);
}

/// A deck that is dropped is opened, wherever it is dropped.
bool frmPrepare::dropped(QEvent& event)
{
    const bool isDrop = event.type() == QEvent::Drop;
    if (!isDrop && event.type() != QEvent::DragEnter && event.type() != QEvent::DragMove)
        return false;
    auto& drop = static_cast<QDropEvent&>(event);
    const auto path = droppedDeck(drop.mimeData());
    if (path.isEmpty()) return false;
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (isDrop) trap([&] { openRecent(corePath(QFileInfo(path).absoluteFilePath())); });
    return true;
}

} // namespace quillmere
