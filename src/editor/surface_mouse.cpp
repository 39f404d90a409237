// The mouse. A press on what is selected begins a drag or, where the mouse does not move, a click;
// QTextEdit never sees it, since it would move text past the page. Held by
// design_surface_mouse_test.cpp.

#include "editor/design_surface.h"

#include "editor/marker_texts.h"
#include "editor/page/page_places.h"
#include "editor/page_formats.h"
#include "editor/page_geometry.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QHelpEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace quillmere {

QPointF DesignSurface::documentPoint(QPoint viewportPoint) const
{
    return viewportPoint + QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

std::optional<DesignSurface::Control> DesignSurface::controlAt(QPoint viewportPoint) const
{
    const auto point = documentPoint(viewportPoint);
    if (const auto place = itemAt(*document(), page_, point)) {
        if (isObject(itemBehind(page_, *place)->kind)) return Control{*place, kNone};
    }
    const auto table = tableBorderAt(*document(), page_, point);
    return table == kNone ? std::nullopt : std::optional(Control{{}, table});
}

/// The innermost element that a point lies in.
DesignSurface::Element DesignSurface::elementAt(QPoint viewportPoint) const
{
    if (const auto control = controlAt(viewportPoint)) return controlElement(*control);
    const auto item = itemAt(*document(), page_, documentPoint(viewportPoint));
    const auto place = item.value_or(placeAtPosition(cursorForPosition(viewportPoint).position()));
    if (item) {
        const auto link = page_.styles[itemBehind(page_, *item)->style].link;
        const bool isLink = link != kNone && page_.elements[link].kind == PageElement::Kind::Link;
        if (isLink) return elementOf("a", page_.elements[link].start);
    }
    const auto offset = offsetAt(page_, place);
    const auto cell = innermostElement(page_, offset, PageElement::Kind::Cell);
    if (cell != kNone) return elementOf("td", page_.elements[cell].start);
    const auto paragraph = page_.blocks[place.block].paragraph;
    if (paragraph != kNone) return elementOf("p", page_.elements[paragraph].start);
    return elementOf("body", {});
}

bool DesignSurface::isSelectedAt(QPoint viewportPoint) const
{
    if (control_ || !textCursor().hasSelection()) return false;
    const auto item = itemAt(*document(), page_, documentPoint(viewportPoint));
    const auto range = selectedRange();
    return item && range.from <= *item && *item < range.to;
}

void DesignSurface::tellOf(void (DesignSurface::*mouseEvent)(const Element&), const Element& source)
{
    const auto element = told(source);
    const QScopedValueRollback guard(event_, std::optional(element));
    emit(this->*mouseEvent)(element);
}

void DesignSurface::mousePressEvent(QMouseEvent* event)
{
    const auto source = elementAt(event->pos());
    undo_.endTyping();
    pressAt(*event);
    pressed_ = source;
    textAtPress_ = page_.text;
    tellOf(&DesignSurface::onmousedown, source);
}

void DesignSurface::pressAt(QMouseEvent& event)
{
    mayDragFrom_.reset();
    const bool isLeft = event.button() == Qt::LeftButton;
    const bool extends = event.modifiers().testFlag(Qt::ShiftModifier);
    const auto control = extends ? std::nullopt : controlAt(event.pos());
    if (control && event.button() != Qt::MiddleButton) {
        setFocus(Qt::MouseFocusReason);
        selectControl(*control);
        if (isLeft) mayDragFrom_ = event.pos();
    } else if (!extends && isSelectedAt(event.pos()) && event.button() != Qt::MiddleButton) {
        if (isLeft) mayDragFrom_ = event.pos();
    } else {
        dropControl();
        if (event.button() == Qt::RightButton) setTextCursor(cursorForPosition(event.pos()));
        QTextEdit::mousePressEvent(&event);
    }
}

void DesignSurface::mouseMoveEvent(QMouseEvent* event)
{
    if (mayDragFrom_ && event->buttons().testFlag(Qt::LeftButton)) {
        const auto way = (event->pos() - *mayDragFrom_).manhattanLength();
        if (way >= QApplication::startDragDistance()) startDragging();
    } else {
        QTextEdit::mouseMoveEvent(event);
    }
    updatePointer(event->pos());
    const auto source = elementAt(event->pos());
    tellOf(&DesignSurface::onmousemove, source);
}

void DesignSurface::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasClick = std::exchange(mayDragFrom_, std::nullopt).has_value();
    if (!wasClick) return QTextEdit::mouseReleaseEvent(event);
    if (!control_) setTextCursor(cursorForPosition(event->pos()));
}

void DesignSurface::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto source = elementAt(event->pos());
    if (const auto control = controlAt(event->pos())) {
        selectControl(*control);
    } else {
        const int position = cursorForPosition(event->pos()).position();
        QTextEdit::mouseDoubleClickEvent(event);
        endWordAtObjects(position);
    }
    tellOf(&DesignSurface::ondblclick, source);
}

/// Of the word that is marked only what lies between objects stays. The base class takes them for
/// letters: of two options "o eins o zwei" it marks both.
void DesignSurface::endWordAtObjects(int position)
{
    auto cursor = textCursor();
    const auto word = cursor.selectedText();
    const auto begin = cursor.selectionStart();
    const auto at = position - begin;
    const auto ahead = at > 0 ? word.lastIndexOf(QChar::ObjectReplacementCharacter, at - 1) : -1;
    const auto behind = word.indexOf(QChar::ObjectReplacementCharacter, at);
    const auto end = behind < 0 ? word.size() : behind;
    cursor.setPosition(begin + static_cast<int>(ahead) + 1);
    cursor.setPosition(begin + static_cast<int>(end), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

// The menu of the base class changes text past the page.
void DesignSurface::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto place = byKey ? cursorRect().center() : event->pos();
    const auto source = control_ ? controlElement(*control_) : elementAt(place);
    const QScopedValueRollback guard(event_, std::optional(told(source)));
    emit ShowContextMenu(viewport()->mapToGlobal(place));
    event->accept();
}

void DesignSurface::startDragging()
{
    mayDragFrom_.reset();
    droppedInside_ = false;
    auto& drag = *new QDrag(this); // deletes itself
    drag.setMimeData(createMimeDataFromSelection());
    const auto done = drag.exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    if (done == Qt::MoveAction && !droppedInside_) editByKey([this] { apply(deletion()); });
}

void DesignSurface::dropEvent(QDropEvent* event)
{
    QDragLeaveEvent leave; // takes the caret that shows the target away
    QTextEdit::dragLeaveEvent(&leave);
    const auto target = placeAtPosition(cursorForPosition(event->position().toPoint()).position());
    const bool isInside = comesFromHere(*event);
    droppedInside_ = isInside;
    if (!canInsertFromMimeData(event->mimeData())) return event->ignore();
    const bool done = editByKey([&] {
        if (isInside && event->dropAction() == Qt::MoveAction) return moveSelectionTo(target);
        setCaret(target);
        insertClip(*event->mimeData());
    });
    if (done) {
        event->acceptProposedAction();
    } else {
        event->setDropAction(Qt::IgnoreAction); // or the source would take its text away
        event->accept();
    }
    CheckElementMovedIntoTable();
    emit onkeyup(elementOf("body", {}));
}

bool DesignSurface::comesFromHere(const QDropEvent& event) const
{
    return event.source() == this || event.source() == viewport();
}

bool DesignSurface::CheckElementMovedIntoTable()
{
    if (!pressed_
        || !movedIntoTable(textAtPress_, page_.text, *pressed_, page_.rules.maxTextLength()))
        return false;
    goBackTo(textAtPress_);
    pressed_.reset();
    emit elementMovedIntoTable();
    return true;
}

void DesignSurface::updatePointer(QPoint point)
{
    const bool isObject = controlAt(point) || isSelectedAt(point);
    viewport()->setCursor(isObject ? Qt::ArrowCursor : Qt::IBeamCursor);
}

bool DesignSurface::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) return showToolTip(static_cast<QHelpEvent&>(*event));
    return QTextEdit::viewportEvent(event);
}

bool DesignSurface::showToolTip(const QHelpEvent& event)
{
    const auto place = itemAt(*document(), page_, documentPoint(event.pos()));
    const auto* item = place ? itemBehind(page_, *place) : nullptr;
    if (item == nullptr || (item->kind != ItemKind::Chip && item->kind != ItemKind::Marker))
        QToolTip::hideText();
    else
        QToolTip::showText(
            event.globalPos(), markerToolTip(item->source.in(page_.text)), viewport());
    return true;
}

} // namespace quillmere
