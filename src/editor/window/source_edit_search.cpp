// The hits are found anew with each change of text or query and marked as far as they are in view.
// Held by source_search_test.cpp.

#include "editor/window/source_edit.h"
#include "editor/window/source_search_bar.h"

#include <QTextBlock>

#include <algorithm>

namespace quillmere {

void SourceEdit::setSearchTexts(SearchTexts texts)
{
    bar_->setTexts(std::move(texts));
}

bool SourceEdit::isSearching() const
{
    return !bar_->isHidden();
}

void SourceEdit::openSearch(bool withReplace)
{
    const auto marked = textCursor().selectedText();
    const bool isOneLine = !marked.contains(QChar::ParagraphSeparator);
    bar_->open(isOneLine ? marked : QString(), withReplace && !isReadOnly());
    layOut();
    search();
}

void SourceEdit::closeSearch()
{
    bar_->hide();
    hits_.clear();
    layOut();
    mark();
    setFocus();
}

void SourceEdit::search()
{
    hits_.clear();
    if (isSearching()) hits_ = findAll(source(), bar_->query());
    hitLength_ = static_cast<int>(bar_->query().text.size());
    showHits();
    mark();
}

void SourceEdit::showHits()
{
    if (isSearching()) bar_->showHits(hits_.size(), markedHit());
}

int SourceEdit::markedHit() const
{
    const auto cursor = textCursor();
    if (cursor.selectionEnd() - cursor.selectionStart() != hitLength_ || hitLength_ == 0) return -1;
    const auto found = std::ranges::lower_bound(hits_, cursor.selectionStart());
    if (found == hits_.end() || *found != cursor.selectionStart()) return -1;
    return static_cast<int>(found - hits_.begin());
}

void SourceEdit::selectHit(std::size_t index)
{
    auto cursor = textCursor();
    cursor.setPosition(hits_.at(index));
    cursor.setPosition(hits_.at(index) + hitLength_, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

void SourceEdit::findNext(bool forward)
{
    if (!isSearching()) openSearch(false);
    if (hits_.empty()) return;
    const auto cursor = textCursor();
    const bool isOnHit = markedHit() >= 0;
    const int from = forward && isOnHit ? cursor.selectionEnd() : cursor.selectionStart();
    selectHit(hitFrom(hits_, from, forward));
}

void SourceEdit::replaceHit()
{
    if (isReadOnly() || hits_.empty()) return;
    if (markedHit() < 0) return findNext(true); // first shown, then replaced
    emit aboutToBreak();
    auto cursor = textCursor();
    cursor.insertText(bar_->replacement());
    if (!hits_.empty()) selectHit(hitFrom(hits_, cursor.position(), true));
}

void SourceEdit::replaceAll()
{
    if (isReadOnly() || hits_.empty()) return;
    emit aboutToBreak();
    const auto count = hits_.size();
    replaceWhole(replaceHits(source(), hits_, hitLength_, bar_->replacement()));
    bar_->showReplaced(count);
}

/// One step of the undo; the caret keeps its line.
void SourceEdit::replaceWhole(const QString& text)
{
    const int line = textCursor().blockNumber();
    auto cursor = textCursor();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    cursor.setPosition(document()->findBlockByNumber(line).position());
    setTextCursor(cursor);
}

void SourceEdit::markHits(QList<QTextEdit::ExtraSelection>& marks) const
{
    if (hits_.empty()) return;
    const auto last = cursorForPosition(viewport()->rect().bottomRight());
    const auto begin = std::ranges::lower_bound(hits_, firstVisibleBlock().position());
    const auto end = std::ranges::upper_bound(hits_, last.position());
    for (auto hit = begin; hit < end; ++hit)
        markRange(marks, *hit, *hit + hitLength_);
}

} // namespace quillmere
