// The changes of the text that keys and commands make. Held by surface_typing_test.cpp.

#include "editor/design_surface.h"

#include "editor/page/page_places.h"
#include "editor/surface_clipboard.h"

#include <QApplication>
#include <QClipboard>

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

void addSplices(SurfaceEdit& edit, SurfaceEdit further)
{
    std::ranges::move(further.splices, std::back_inserter(edit.splices));
    std::ranges::stable_sort(
        edit.splices, {}, [](const auto& splice) { return splice.removed.begin; });
}

/// Where an offset of the text lies behind the edit.
std::size_t offsetBehind(const SurfaceEdit& edit, std::size_t offset)
{
    auto moved = offset;
    for (const auto& splice : edit.splices)
        if (splice.removed.end <= offset)
            moved = moved - (splice.removed.end - splice.removed.begin) + splice.inserted.size();
    return moved;
}

} // namespace

void DesignSurface::apply(const SurfaceEdit& edit, SurfaceUndo::Kind kind)
{
    if (edit.splices.empty()) return;
    auto text
        = edited(page_.text, edit, page_.rules); // refuses what is too long; all is as it was then
    undo_.add(page_.text, edit, caretOffset(), kind);
    showText(std::move(text), edit.caret);
    ensureCursorVisible();
}

void DesignSurface::goTo(const std::optional<SurfaceUndo::State>& state)
{
    if (!state) return;
    showText(state->text, state->caret);
    ensureCursorVisible();
}

void DesignSurface::undo()
{
    goTo(undo_.undo(page_.text, caretOffset()));
}

void DesignSurface::redo()
{
    goTo(undo_.redo(page_.text, caretOffset()));
}

/// Back over what was edited since the text was that; what is left behind cannot come again.
void DesignSurface::goBackTo(const std::string& text)
{
    SurfaceUndo::State state{page_.text, caretOffset()};
    while (state.text != text) {
        auto earlier = undo_.undo(state.text, state.caret);
        if (!earlier) return showAnew(text, 0);
        state = std::move(*earlier);
    }
    undo_.forgetUndone();
    goTo(state);
}

/// An edit of what is selected, of its first cell where cells are marked; the others are emptied.
SurfaceEdit DesignSurface::withOtherCellsEmptied(SurfaceEdit inFirst) const
{
    const auto ranges = selectedRanges();
    for (auto range = ranges.begin() + 1; range != ranges.end(); ++range)
        addSplices(inFirst, deleteRange(page_, range->from, range->to));
    return inFirst;
}

SurfaceEdit DesignSurface::deletion() const
{
    const auto first = selectedRanges().front();
    return withOtherCellsEmptied(deleteRange(page_, first.from, first.to));
}

void DesignSurface::type(const QString& text, SurfaceUndo::Kind kind)
{
    if (text.isEmpty()) return;
    const auto first = selectedRanges().front();
    const auto edit = typeText(page_, first.from, first.to, text.toStdU16String());
    apply(withOtherCellsEmptied(edit), kind);
}

void DesignSurface::pasteHTML(std::string_view markup)
{
    const auto first = selectedRanges().front();
    apply(withOtherCellsEmptied(pasteMarkup(page_, first.from, first.to, markup)));
}

/// What is marked stays marked: no item comes or goes. Cell by cell, since a format may reach over
/// several.
void DesignSurface::removeFormat()
{
    if (!hasSelection() || control_) return;
    const auto anchor = placeAtPosition(textCursor().anchor()), caret = caretPlace();
    auto kind = SurfaceUndo::Kind::Other;
    for (const auto& range : selectedRanges()) {
        const auto edit = removeFormats(page_, range.from, range.to);
        apply(edit, kind);
        if (!edit.splices.empty()) kind = SurfaceUndo::Kind::SameStep;
    }
    select({anchor, caret});
}

void DesignSurface::deleteOr(const std::function<SurfaceEdit(PagePlace)>& edit)
{
    apply(hasSelection() ? deletion() : edit(caretPlace()));
}

/// Takes out the text up to the next border of a word in the block, else what a single key takes.
void DesignSurface::deleteWord(QTextCursor::MoveOperation to)
{
    const auto caret = caretPlace();
    auto cursor = textCursor();
    cursor.movePosition(to);
    const auto end = placeAtPosition(cursor.position());
    if (end.block == caret.block && end != caret)
        return apply(deleteRange(page_, std::min(caret, end), std::max(caret, end)));
    const bool isBack = to == QTextCursor::PreviousWord;
    apply(isBack ? deleteBackward(page_, caret) : deleteForward(page_, caret));
}

/// Takes out what is selected and puts it in at another place, as one step.
void DesignSurface::moveSelectionTo(PagePlace target)
{
    const auto range = selectedRange();
    if (range.empty() || (range.from <= target && target <= range.to)) return;
    const auto out = deletion();
    const auto markup = selectedMarkup();
    const auto textBetween = edited(page_.text, out, page_.rules);
    const auto pageBetween = readSurfacePage(textBetween, page_.rules);
    const auto place = placeAt(pageBetween, offsetBehind(out, offsetAt(page_, target)));
    const auto in = pasteMarkup(pageBetween, place, place, markup);
    auto text = edited(textBetween, in, page_.rules);
    undo_.add(page_.text, out, caretOffset(), SurfaceUndo::Kind::Other);
    undo_.add(textBetween, in, out.caret, SurfaceUndo::Kind::SameStep);
    showText(std::move(text), in.caret);
}

void DesignSurface::copy() const
{
    if (hasSelection()) QApplication::clipboard()->setMimeData(createMimeDataFromSelection());
}

void DesignSurface::cut()
{
    if (!hasSelection()) return;
    copy();
    apply(deletion());
}

void DesignSurface::paste()
{
    const auto* clip = QApplication::clipboard()->mimeData();
    if (clip != nullptr) insertClip(*clip);
}

void DesignSurface::insertClip(const QMimeData& clip)
{
    const auto content = contentOf(clip, page_.rules);
    if (const auto* markup = std::get_if<std::string>(&content)) pasteHTML(*markup);
    if (const auto* text = std::get_if<QString>(&content)) type(*text, SurfaceUndo::Kind::Other);
}

bool DesignSurface::canInsertFromMimeData(const QMimeData* source) const
{
    return source != nullptr && holdsContent(*source);
}

// Comes from the middle button, which pastes what is marked elsewhere.
void DesignSurface::insertFromMimeData(const QMimeData* source)
{
    if (source != nullptr) editByKey([this, source] { insertClip(*source); });
}

QMimeData* DesignSurface::createMimeDataFromSelection() const
{
    return clipOf(selectedMarkup(), selectedText()).release();
}

} // namespace quillmere
