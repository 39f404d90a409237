#pragma once

#include "imageconv/alternative_text_painter.h"

#include <QFont>

namespace quillmere {

/// Draws with the fonts of the desktop. Needs a QGuiApplication.
class QtAlternativeTextPainter final : public AlternativeTextPainter {
public:
    /// The size of `font` in pixels is that of the text, whatever the screen's resolution.
    explicit QtAlternativeTextPainter(const QFont& font);
    [[nodiscard]] TextCoverage paint(std::string_view text) override;

private:
    QFont font_;
};

} // namespace quillmere
