#pragma once

#include <QColor>
#include <QPalette>

namespace quillmere {

/// Least contrast of a text to its ground (WCAG 2.1, level AA).
inline constexpr double kTextContrast = 4.5;

/// How much two colours differ in lightness, from 1 to 21 (WCAG 2.1, contrast ratio).
[[nodiscard]] double contrastOf(const QColor& left, const QColor& right);

/// The colours of the source view. All that is written reaches kTextContrast on `ground` and on the
/// tones of it that mark lines and hits.
struct SourceColours {
    QColor ground; ///< as the palette has it
    QColor ink;
    QColor lineGround; ///< behind the line of the caret
    QColor numberGround; ///< behind the line numbers
    QColor hitGround; ///< behind what was searched for, and behind a pair of tags

    QColor number;
    QColor tag;
    QColor attribute;
    QColor value;
    QColor entity;
    QColor comment;
    QColor error;
};

/// The colours that go with a palette's ground and ink, be it light, dark or between.
[[nodiscard]] SourceColours sourceColours(const QPalette& palette);

} // namespace quillmere
