#pragma once

#include "editor/page/surface_page.h"
#include "editor/surface_style.h"

#include <QByteArray>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextTableFormat>

#include <cstddef>

// The formats of a text document for what stands on a page.

namespace quillmere {

/// Object types of the one-character objects of a page.
enum PageObject : int {
    kPictureObject = QTextFormat::UserObject + 1,
    kRadioObject,
    kChipObject,
    kMarkerObject,
};

/// The source of an object, as objectSource() gives it.
inline constexpr int kSourceProperty = QTextFormat::UserProperty + 1;

/// Whether a marker stands in a table.
inline constexpr int kInTableProperty = kSourceProperty + 1;

/// Of text in a document whose own font and ink are those of the page.
[[nodiscard]] QTextCharFormat textFormat(const TextStyle& style, const SurfaceStyle& look);
/// The size alone.
[[nodiscard]] QTextCharFormat sizeFormat(const TextStyle& style, const SurfaceStyle& look);

/// The format of a single item: that of its text, or that of an object with its source.
[[nodiscard]] QTextCharFormat itemFormat(
    const SurfacePage& page, const PageItem& item, const SurfaceStyle& look);

/// The source text of the object with this format, Windows-1252.
[[nodiscard]] QByteArray objectSource(const QTextFormat& format);

/// The character that stands for an item in the document. What a text document keeps for itself or
/// cannot show becomes a box.
[[nodiscard]] QChar shownCharacter(const PageItem& item);

[[nodiscard]] QTextBlockFormat blockFormat(const PageBlock& block, const SurfaceStyle& look);
/// The formats of an empty line next to a table while the caret is elsewhere.
[[nodiscard]] QTextBlockFormat lowBlockFormat();
[[nodiscard]] QTextCharFormat lowFormat();

inline constexpr double kTableLinePx = 1;
[[nodiscard]] QTextTableFormat tableFormat();

/// Text of the design text for the eye: entities read.
[[nodiscard]] QString shownText(QByteArrayView source);

} // namespace quillmere
