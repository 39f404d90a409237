// Held by page_document_test.cpp and seen in the pictures of quillmere-gallery.

#include "editor/page_formats.h"

#include "editor/page/page_places.h"

#include <QFontDatabase>

#include <algorithm>
#include <array>
#include <string>

namespace quillmere {
namespace {

constexpr int kLineDistancePx = 5;
constexpr int kLowBlockPx = 6;
constexpr double kCellPaddingPx = 6;
constexpr int kCellLineDistancePx = 2;
constexpr double kBelowTablePx = 6;

// By the size step from -2 to 2, in percent of the page's font size.
constexpr std::array<int, 5> kSizes = {72, 85, 100, 125, 150};

int sizePx(const TextStyle& style, const SurfaceStyle& look)
{
    const auto step = static_cast<std::size_t>(std::clamp<int>(style.sizeStep, -2, 2) + 2);
    return std::max(1, qRound(look.fontSizePx * kSizes[step] / 100.0));
}

int objectTypeOf(ItemKind kind)
{
    if (kind == ItemKind::Picture) return kPictureObject;
    if (kind == ItemKind::Radio) return kRadioObject;
    return kind == ItemKind::Chip ? kChipObject : kMarkerObject;
}

bool isInTable(const SurfacePage& page, const PageItem& item)
{
    const auto index = static_cast<std::size_t>(&item - page.items.data());
    return page.blocks[placeOfItem(page, index).block].cell != kNone;
}

// "top" lies on the line as "bottom" does: a text layout hangs nothing from a line's upper
// edge.
void setPictureAlignment(QTextCharFormat& format, std::string_view tag)
{
    if (QByteArrayView(attributeOf(tag, "align")).compare("middle", Qt::CaseInsensitive) == 0)
        format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
}

Qt::Alignment qtAlignment(Alignment alignment)
{
    switch (alignment) {
    case Alignment::Center:
        return Qt::AlignHCenter;
    case Alignment::Right:
        return Qt::AlignRight;
    case Alignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

} // namespace

// Plain text has no property of its own but the font and the ink of the document: a text layout
// copies the format of each cell many times.
QTextCharFormat textFormat(const TextStyle& style, const SurfaceStyle& look)
{
    QTextCharFormat format;
    if (style.sizeStep != 0) format.setProperty(QTextFormat::FontPixelSize, sizePx(style, look));
    if (style.fixedPitch)
        format.setFontFamilies({QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    if (style.bold) format.setFontWeight(QFont::Bold);
    if (style.italic) format.setFontItalic(true);
    if (style.underlined || style.link != kNone) format.setFontUnderline(true);
    if (style.link != kNone) format.setForeground(look.link);
    return format;
}

QTextCharFormat sizeFormat(const TextStyle& style, const SurfaceStyle& look)
{
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontPixelSize, sizePx(style, look));
    return format;
}

QTextCharFormat itemFormat(const SurfacePage& page, const PageItem& item, const SurfaceStyle& look)
{
    auto format = textFormat(page.styles[item.style], look);
    if (!isObject(item.kind)) return format;
    const auto source = item.source.in(page.text);
    format.setObjectType(objectTypeOf(item.kind));
    format.setProperty(
        kSourceProperty, QByteArray(source.data(), static_cast<qsizetype>(source.size())));
    if (item.kind == ItemKind::Marker) format.setProperty(kInTableProperty, isInTable(page, item));
    if (item.kind == ItemKind::Picture)
        setPictureAlignment(format, source);
    else
        format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    return format;
}

QByteArray objectSource(const QTextFormat& format)
{
    return format.property(kSourceProperty).toByteArray();
}

QChar shownCharacter(const PageItem& item)
{
    if (item.kind == ItemKind::Blank) return u' ';
    if (item.kind != ItemKind::Character) return item.shown;
    const QChar c(item.shown);
    if (c.isSurrogate() || c.isNonCharacter() || c == QChar::ParagraphSeparator
        || c == QChar::LineSeparator || c == QChar::ObjectReplacementCharacter
        || c.category() == QChar::Other_Control)
        return u'\u25A1';
    return c;
}

QTextBlockFormat blockFormat(const PageBlock& block, const SurfaceStyle& look)
{
    QTextBlockFormat format;
    if (block.alignment != Alignment::Left) format.setAlignment(qtAlignment(block.alignment));
    const bool isInTable = block.cell != kNone;
    format.setLineHeight(
        isInTable ? kCellLineDistancePx : kLineDistancePx, QTextBlockFormat::LineDistanceHeight);
    const bool isParagraph = block.paragraph != kNone && !isInTable;
    if (isParagraph || block.isAside) format.setBottomMargin(look.fontSizePx / 2.0);
    return format;
}

QTextCharFormat lowFormat()
{
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontPixelSize, 1);
    return format;
}

QTextBlockFormat lowBlockFormat()
{
    QTextBlockFormat format;
    format.setLineHeight(kLowBlockPx, QTextBlockFormat::FixedHeight);
    return format;
}

// A text layout needs twice its time for borders of cells, so there are none: drawTableLines()
// draws them into the room between the cells.
QTextTableFormat tableFormat()
{
    QTextTableFormat format;
    format.setCellPadding(kCellPaddingPx);
    format.setCellSpacing(kTableLinePx);
    format.setBorderCollapse(false);
    format.setBorder(0);
    format.setBottomMargin(kBelowTablePx);
    return format;
}

QString shownText(QByteArrayView source)
{
    const auto page
        = readSurfacePage(std::string(source.data(), static_cast<std::size_t>(source.size())));
    QString text;
    for (const auto& item : page.items)
        if (!isObject(item.kind)) text += shownCharacter(item);
    return text;
}

} // namespace quillmere
