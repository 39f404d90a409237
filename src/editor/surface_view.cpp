// The picture of the page: changed item by item where that will do, else built anew. Nothing but
// these functions changes the text document; keepInStep() watches over that. Held by
// design_surface_test.cpp.

#include "editor/design_surface.h"

#include "editor/page/page_difference.h"
#include "editor/page/page_places.h"
#include "editor/page_formats.h"

#include <QAbstractTextDocumentLayout>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

#include <utility>

namespace quillmere {
namespace {

constexpr double kPageMarginPx = 20;

} // namespace

void DesignSurface::showText(std::string text, std::size_t caret)
{
    auto wanted = readSurfacePage(std::move(text), page_.rules);
    const auto change = differenceOf(page_, wanted);
    page_ = std::move(wanted);
    event_.reset(); // its element may be gone
    dropControl();
    if (change) {
        const QScopedValueRollback guard(showing_, true);
        showChange(*document(), page_, *change, style_);
    } else {
        rebuild();
    }
    setCaret(placeAt(page_, caret));
    emit changed();
}

/// Forgets all that could be undone.
void DesignSurface::showAnew(std::string text, std::size_t caret)
{
    undo_.clear();
    pressed_.reset();
    event_.reset();
    page_ = readSurfacePage(std::move(text), rules_);
    rebuild();
    setCaret(placeAt(page_, caret));
    if (caretPlace() == firstPlace(page_)) verticalScrollBar()->setValue(0);
    emit changed();
}

void DesignSurface::rebuild()
{
    const QScopedValueRollback busy(busy_, true);
    const QScopedValueRollback showing(showing_, true);
    const int scrolled = verticalScrollBar()->value();
    dropControl();
    caretBlock_ = 0;
    // with the parent of the one it takes the place of: setDocument() deletes no others
    auto& fresh = *new QTextDocument(document()->parent());
    fresh.setDocumentMargin(kPageMarginPx);
    fresh.setDefaultTextOption(document()->defaultTextOption());
    showPage(fresh, page_, style_);
    objects_.attachTo(fresh);
    setDocument(&fresh);
    setCursorWidth(kCaretWidthPx); // a property of the document's layout
    connect(&fresh, &QTextDocument::contentsChange, this,
        [this](int, int removed, int added) { keepInStep(removed, added); });
    verticalScrollBar()->setValue(scrolled);
}

// Layouts tell of changed formats as if as many characters came as went.
void DesignSurface::keepInStep(int removed, int added)
{
    if (showing_ || removed == added) return;
    Q_ASSERT_X(false, "DesignSurface", "the document was changed past the page");
    const auto buildAgain = [this] {
        const auto place = placeAtPosition(textCursor().position());
        rebuild();
        setCaret(place);
    };
    QMetaObject::invokeMethod(this, buildAgain, Qt::QueuedConnection);
}

void DesignSurface::restyle()
{
    applyPalette();
    objects_.setStyle(style_);
    const auto place = caretPlace();
    rebuild();
    setCaret(place);
}

// Marked text is turned round, ground on ink, as on a telephone's display.
void DesignSurface::applyPalette()
{
    auto colours = palette();
    colours.setColor(QPalette::Base, style_.ground);
    colours.setColor(QPalette::Text, style_.ink);
    colours.setColor(QPalette::Highlight, style_.ink);
    colours.setColor(QPalette::HighlightedText, style_.ground);
    setPalette(colours);
    setFont(pageFont(style_, style_.fontSizePx));
}

/// The empty lines next to tables are high only while the caret is in them.
void DesignSurface::caretMoved()
{
    if (showing_) return;
    const auto block = caretPlace().block;
    if (control_ || block == caretBlock_) return;
    const QScopedValueRollback guard(showing_, true);
    if (caretBlock_ < page_.blocks.size())
        setCaretInBlock(*document(), page_, caretBlock_, false, style_);
    setCaretInBlock(*document(), page_, block, true, style_);
    caretBlock_ = block;
}

} // namespace quillmere
