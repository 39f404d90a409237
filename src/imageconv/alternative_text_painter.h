#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// A drawn text, as how much of each pixel it covers.
struct TextCoverage {
    std::int32_t widthPx = 0; ///< from 1 on
    std::int32_t heightPx = 0; ///< from 1 on
    std::string pixels; ///< row by row without padding, 0 the ground to 255 the text
};

/// Draws the text that stands in place of a missing picture.
class AlternativeTextPainter {
public:
    AlternativeTextPainter() = default;
    AlternativeTextPainter(const AlternativeTextPainter&) = delete;
    AlternativeTextPainter& operator=(const AlternativeTextPainter&) = delete;
    AlternativeTextPainter(AlternativeTextPainter&&) = delete;
    AlternativeTextPainter& operator=(AlternativeTextPainter&&) = delete;
    virtual ~AlternativeTextPainter() = default;

    /// Draws one line of Windows-1252 text, a few characters long.
    [[nodiscard]] virtual TextCoverage paint(std::string_view text) = 0;
};

} // namespace quillmere
