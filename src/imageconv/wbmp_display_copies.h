#pragma once

#include "document/display_copies.h"
#include "document/text/output_rules.h"
#include "imageconv/alternative_text_painter.h"
#include "imageconv/wbmp.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// The colour of a picture's clear bits, red in the low byte: a dark red.
inline constexpr std::int32_t kClearBitColour = 0x00000040;

/// The bytes of a BMP file with the picture: `ground` (red in the low byte) where its bits are set,
/// kClearBitColour where they are clear. A picture without pixels becomes one pixel of ground.
[[nodiscard]] std::string drawPicture(const WbmpPicture& picture, std::int32_t ground);

/// Display copies for a surface that shows them. A missing picture is told by the first 12
/// characters of its alternative text, followed by "..." where there are more.
class WbmpDisplayCopies final : public DisplayCopies {
public:
    /// `painter` must outlive the object.
    WbmpDisplayCopies(const OutputRules& rules, AlternativeTextPainter& painter);
    [[nodiscard]] DisplayCopy draw(const std::string& path, std::string_view alternativeText,
        std::int32_t backgroundColour) override;

private:
    OutputRules rules_;
    AlternativeTextPainter& painter_;
};

/// Display copies for a program without a surface: sizes only, of which the header of each file
/// tells; no BMP file has a byte.
class WbmpSizes final : public DisplayCopies {
public:
    explicit WbmpSizes(const OutputRules& rules);
    [[nodiscard]] DisplayCopy draw(const std::string& path, std::string_view alternativeText,
        std::int32_t backgroundColour) override;

private:
    OutputRules rules_;
};

} // namespace quillmere
