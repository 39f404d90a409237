// What belongs to the search is in source_edit_search.cpp. Held by source_edit_test.cpp.

#include "editor/window/source_edit.h"

#include "editor/window/source_highlighter.h"
#include "editor/window/source_numbers.h"
#include "editor/window/source_search_bar.h"
#include "editor/window/source_tag_pair.h"
#include "forms/text.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QTextBlock>

#include <algorithm>

namespace quillmere {
namespace {

constexpr int kNumberMarginPx = 8;
constexpr int kLeastDigits = 3;
constexpr int kTabInBlanks = 4;
constexpr int kMaxPairText = 200'000; // beyond it a walk over all tags is felt at each key

bool breaks(const QString& typed)
{
    return std::ranges::any_of(
        typed, [](QChar c) { return c == u' ' || c == u'\r' || c == u'\n'; });
}

} // namespace

SourceEdit::SourceEdit(QWidget* parent)
    : QPlainTextEdit(parent)
    , highlighter_(new SourceHighlighter(document()))
    , numbers_(new SourceNumbers(this))
    , bar_(new SourceSearchBar(this))
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setAccessibleName(QStringLiteral("WML-Quelltext"));
    takeColours();
    wire();
    layOut();
}

void SourceEdit::wire()
{
    connect(this, &QPlainTextEdit::blockCountChanged, this, &SourceEdit::layOut);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &SourceEdit::mark);
    connect(this, &QPlainTextEdit::selectionChanged, this, &SourceEdit::showHits);
    connect(document(), &QTextDocument::contentsChange, this, [this] { hits_.clear(); });
    connect(this, &QPlainTextEdit::textChanged, this, &SourceEdit::search);
    connect(this, &QPlainTextEdit::updateRequest, numbers_, [this] { numbers_->update(); });
    addKey(QStringLiteral("Ctrl+F"), [this] { openSearch(false); });
    addKey(QStringLiteral("Ctrl+H"), [this] { openSearch(true); });
    addKey(QStringLiteral("F3"), [this] { findNext(true); });
    addKey(QStringLiteral("Shift+F3"), [this] { findNext(false); });
    connect(bar_, &SourceSearchBar::queryChanged, this, &SourceEdit::search);
    connect(bar_, &SourceSearchBar::wanted, this, &SourceEdit::findNext);
    connect(bar_, &SourceSearchBar::replaceWanted, this, &SourceEdit::replaceHit);
    connect(bar_, &SourceSearchBar::replaceAllWanted, this, &SourceEdit::replaceAll);
    connect(bar_, &SourceSearchBar::closed, this, &SourceEdit::closeSearch);
}

/// The key works wherever the focus of the window is, as long as the source is shown.
template <class Action> void SourceEdit::addKey(const QString& keys, const Action& action)
{
    auto* shortcut = new QShortcut(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, this, action);
}

void SourceEdit::setWml(std::string_view text)
{
    setPlainText(shownText(text));
}

std::string SourceEdit::wml() const
{
    auto text = source();
    return coreText(text.replace(u'\n', QStringLiteral("\r\n")));
}

// toPlainText() would make blanks of hard blanks.
QString SourceEdit::source() const
{
    auto text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return text.replace(QChar::LineSeparator, u'\n');
}

void SourceEdit::takeColours()
{
    colours_ = sourceColours(palette());
    highlighter_->setColours(colours_);
    bar_->takeLook(colours_);
    setTabStopDistance(kTabInBlanks * fontMetrics().horizontalAdvance(u' '));
    mark();
}

void SourceEdit::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    const bool isLook
        = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (!isLook) return;
    takeColours();
    layOut();
}

void SourceEdit::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    layOut();
}

void SourceEdit::layOut()
{
    const int barHeight = bar_->isHidden() ? 0 : bar_->sizeHint().height();
    setViewportMargins(numberWidth(), barHeight, 0, 0);
    const auto inner = contentsRect();
    bar_->setGeometry(inner.left(), inner.top(), numberWidth() + viewport()->width(), barHeight);
    numbers_->setGeometry(
        inner.left(), inner.top() + barHeight, numberWidth(), inner.height() - barHeight);
}

int SourceEdit::numberWidth() const
{
    const int digits
        = std::max(kLeastDigits, static_cast<int>(QString::number(blockCount()).size()));
    return 2 * kNumberMarginPx + digits * fontMetrics().horizontalAdvance(u'9');
}

void SourceEdit::paintNumbers(QPaintEvent* event)
{
    QPainter painter(numbers_);
    painter.fillRect(event->rect(), colours_.numberGround);
    painter.setFont(font());
    const int current = textCursor().blockNumber();
    auto block = firstVisibleBlock();
    auto place = blockBoundingGeometry(block).translated(contentOffset());
    for (; block.isValid() && place.top() <= event->rect().bottom(); block = block.next()) {
        place = blockBoundingGeometry(block).translated(contentOffset());
        painter.setPen(block.blockNumber() == current ? colours_.ink : colours_.number);
        const QRectF row(0, place.top(), numbers_->width() - kNumberMarginPx, place.height());
        painter.drawText(
            row, Qt::AlignRight | Qt::AlignTop, QString::number(block.blockNumber() + 1));
    }
}

void SourceEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && isSearching()) return closeSearch();
    if (isReadOnly()) return QPlainTextEdit::keyPressEvent(event);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn || event->text() == QStringLiteral(" ")) emit aboutToBreak();
    if (isReturn) { // with Shift it would make a line that has no number
        QKeyEvent plain(event->type(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        return QPlainTextEdit::keyPressEvent(&plain);
    }
    QPlainTextEdit::keyPressEvent(event);
}

void SourceEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (!isReadOnly() && breaks(event->commitString())) emit aboutToBreak();
    QPlainTextEdit::inputMethodEvent(event);
}

void SourceEdit::scrollContentsBy(int dx, int dy)
{
    QPlainTextEdit::scrollContentsBy(dx, dy);
    if (!hits_.empty()) mark(); // other hits are in view
}

void SourceEdit::mark()
{
    QList<QTextEdit::ExtraSelection> marks;
    QTextEdit::ExtraSelection line;
    line.format.setBackground(colours_.lineGround);
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    marks.append(line);
    markPair(marks);
    markHits(marks);
    setExtraSelections(marks);
    numbers_->update();
}

void SourceEdit::markRange(QList<QTextEdit::ExtraSelection>& marks, int begin, int end) const
{
    QTextEdit::ExtraSelection range;
    range.format.setBackground(colours_.hitGround);
    range.cursor = QTextCursor(document());
    range.cursor.setPosition(begin);
    range.cursor.setPosition(end, QTextCursor::KeepAnchor);
    marks.append(range);
}

void SourceEdit::markPair(QList<QTextEdit::ExtraSelection>& marks) const
{
    if (document()->characterCount() > kMaxPairText || textCursor().hasSelection()) return;
    const auto pair = tagPairAt(source(), textCursor().position());
    if (!pair) return;
    markRange(marks, pair->start.begin, pair->start.end);
    markRange(marks, pair->end.begin, pair->end.end);
}

} // namespace quillmere
