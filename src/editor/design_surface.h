#pragma once

#include "document/platform/work_files.h"
#include "document/session.h"
#include "editor/inline_objects.h"
#include "editor/page/hit_test.h"
#include "editor/page/page_edits.h"
#include "editor/page/surface_page.h"
#include "editor/page_document.h"
#include "editor/picture_cache.h"
#include "editor/surface_style.h"
#include "editor/surface_undo.h"

#include <QTextEdit>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmere {

// What ExecCommand() and QueryStatus() are asked for.
namespace surface_command {
inline constexpr int kCopy = 5002;
inline constexpr int kCut = 5003;
inline constexpr int kItalic = 5023;
inline constexpr int kPaste = 5032;
inline constexpr int kRemoveFormat = 5034;
inline constexpr int kUndo = 5049;
} // namespace surface_command

/// The widget on which an area is edited. The area's design text is the truth: every key, drop and
/// command becomes an edit of it, and the text document of the widget only shows it. Operations
/// throw Failure and change nothing then; what a person's keys and mouse cannot do is told by
/// failed().
class DesignSurface : public QTextEdit, public EditingSurface {
    Q_OBJECT

public:
    using Element = SurfaceSelection::Element;

    explicit DesignSurface(WorkFiles& files, QWidget* parent = nullptr);

    /// Runs one of surface_command; any other does nothing.
    void ExecCommand(int id);
    /// 1 (disabled) while an object (picture, radio button, chip, table) is selected, else 3
    /// (enabled).
    [[nodiscard]] int QueryStatus(int id) const;
    void SaveDocument(const std::string& path) override;
    /// Shows a design work file; "file://" ahead of its path is dropped. Where it is the one that
    /// is shown, the caret stays at what it stands at. Nothing can be undone then.
    void LoadURL(const std::string& path);
    void NewDocument();
    /// How design texts are read that are shown from now on, and how long they may become.
    void setRules(const OutputRules& rules) { rules_ = rules; }
    [[nodiscard]] const std::string& DocumentHTML() const { return page_.text; }
    /// Another state of what is shown.
    void setDocumentHTML(std::string text);
    [[nodiscard]] bool Busy() const override { return busy_; }
    void yieldToEvents() override;

    /// What is selected. Places are those of the text with its lines joined, as ReadDesignText
    /// gives it.
    [[nodiscard]] SurfaceSelection selection() const;
    [[nodiscard]] std::string selectedMarkup() const;
    [[nodiscard]] QString selectedText() const;
    /// Puts markup in place of what is selected, as it is.
    void pasteHTML(std::string_view markup);
    /// Where typed text would go: an offset in DocumentHTML().
    [[nodiscard]] std::size_t caretOffset() const;
    void setCaretOffset(std::size_t offset);
    // In place of QTextEdit's, which would change the document only. They throw as ExecCommand
    // does.
    void undo();
    void redo();
    void copy() const;
    void cut();
    void paste();

    [[nodiscard]] const SurfaceStyle& look() const { return style_; }
    void setLook(const SurfaceStyle& look);
    [[nodiscard]] QColor fgColor() const { return style_.ink; }
    [[nodiscard]] QColor bgColor() const { return style_.ground; }
    void setFgColor(const QColor& colour);
    void setBgColor(const QColor& colour);
    void setFontFamily(const QString& family);
    void setFontSizePx(int size);

    /// Where the element that the mouse pressed on was put into a table, the text of the press
    /// comes back, elementMovedIntoTable() is sent, and the answer is true.
    bool CheckElementMovedIntoTable();

    [[nodiscard]] const SurfacePage& page() const { return page_; }
    [[nodiscard]] PagePlace caretPlace() const;

signals:
    /// A point in the coordinates of the screen. During this and the mouse events selection() tells
    /// of the event. Places of elements are those that selection() tells.
    void ShowContextMenu(QPoint point);
    void onmousedown(const quillmere::SurfaceSelection::Element& source);
    void onmousemove(const quillmere::SurfaceSelection::Element& source);
    void ondblclick(const quillmere::SurfaceSelection::Element& source);
    /// Ahead of what a key, a drop or an input method changes.
    void onkeypress(const quillmere::SurfaceSelection::Element& source);
    void onkeyup(const quillmere::SurfaceSelection::Element& source);
    /// The text was changed, be it by a person or by an operation.
    void changed();
    void elementMovedIntoTable();
    /// What a person wanted cannot be done; a German text to show. Nothing was changed.
    void failed(const QString& description);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    /// Whether a drop is of what was dragged on this surface.
    [[nodiscard]] virtual bool comesFromHere(const QDropEvent& event) const;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    static constexpr int kCaretWidthPx = 2;

    struct Range {
        PagePlace from;
        PagePlace to;
        [[nodiscard]] bool empty() const { return from == to; }
    };
    /// The selected picture, radio button, chip (an item) or table.
    struct Control {
        PagePlace item;
        std::size_t table = kNone; ///< kNone: it is the item
    };

    // what is shown
    void showText(std::string text, std::size_t caret);
    void showAnew(std::string text, std::size_t caret);
    void rebuild();
    void restyle();
    void applyPalette();
    void caretMoved();
    void keepInStep(int removed, int added);
    [[nodiscard]] QPointF documentPoint(QPoint viewportPoint) const;

    // what is selected
    [[nodiscard]] PagePlace placeAtPosition(int position) const;
    void setCaret(PagePlace place);
    void select(const Range& range);
    void selectControl(const Control& control);
    void dropControl();
    [[nodiscard]] std::optional<Control> controlAt(QPoint viewportPoint) const;
    [[nodiscard]] bool isSelectedAt(QPoint viewportPoint) const;
    [[nodiscard]] std::vector<Range> selectedCells() const;
    [[nodiscard]] Range selectedRange() const;
    [[nodiscard]] std::vector<Range> selectedRanges() const;
    [[nodiscard]] bool hasSelection() const { return !selectedRange().empty(); }
    [[nodiscard]] Element elementOf(std::string tag, SourceRange source) const;
    [[nodiscard]] Element controlElement(const Control& control) const;
    [[nodiscard]] Element elementAt(QPoint viewportPoint) const;
    [[nodiscard]] SourceRange sourceOf(const Range& range) const;
    [[nodiscard]] SourceRange joined(SourceRange range) const;
    [[nodiscard]] Element told(Element element) const;
    [[nodiscard]] QRectF controlRect() const;

    // what is changed
    void apply(const SurfaceEdit& edit, SurfaceUndo::Kind kind = SurfaceUndo::Kind::Other);
    void removeFormat();
    void goTo(const std::optional<SurfaceUndo::State>& state);
    void goBackTo(const std::string& text);
    [[nodiscard]] SurfaceEdit withOtherCellsEmptied(SurfaceEdit inFirst) const;
    [[nodiscard]] SurfaceEdit deletion() const;
    void type(const QString& text, SurfaceUndo::Kind kind);
    void deleteOr(const std::function<SurfaceEdit(PagePlace)>& edit);
    void deleteWord(QTextCursor::MoveOperation to);
    void insertClip(const QMimeData& clip);

    // keys, input methods and the mouse
    using Action = void (DesignSurface::*)();
    struct Key;
    [[nodiscard]] static const Key* keyFor(QKeyEvent& event);
    bool trap(const std::function<void()>& action);
    bool editByKey(const std::function<void()>& action);
    void typeReturn();
    void backspace();
    void deleteKey();
    void wordBackspace();
    void wordDelete();
    void takeCommit(const QInputMethodEvent& event);
    void tellOf(void (DesignSurface::*mouseEvent)(const Element&), const Element& source);
    void pressAt(QMouseEvent& event);
    void startDragging();
    void endWordAtObjects(int position);
    void moveSelectionTo(PagePlace target);
    bool showToolTip(const QHelpEvent& event);
    void updatePointer(QPoint point);

    WorkFiles& files_;
    PictureCache pictures_{&files_};
    InlineObjects objects_{pictures_};
    SurfaceStyle style_;
    OutputRules rules_; // of the next text; those of the shown one are the page's
    SurfacePage page_;
    SurfaceUndo undo_;
    std::optional<Control> control_;
    std::optional<Element> event_; // while a mouse event is handled
    std::optional<Element> pressed_; // under the mouse at its last press, in textAtPress_
    std::string textAtPress_;
    std::string shownPath_; // of the last LoadURL(); "" behind NewDocument()
    std::optional<QPoint> mayDragFrom_; // a press on what is selected, until the mouse moves on
    std::size_t caretBlock_ = 0;
    bool busy_ = false;
    bool showing_ = false; // the document changes because the page does
    bool droppedInside_ = false;
};

} // namespace quillmere
