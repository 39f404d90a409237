#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// A picture as the surface shows it.
struct DisplayCopy {
    std::string bmp; ///< the bytes of a BMP file
    std::int32_t heightPx = 0; ///< of the picture itself; 0 where there is none
    std::int32_t widthPx = 0;
    std::int32_t imageColour = 0; ///< the colour that goes with the ground, red in the low byte
};

/// Draws display copies of WBMP pictures.
class DisplayCopies {
public:
    DisplayCopies() = default;
    DisplayCopies(const DisplayCopies&) = delete;
    DisplayCopies& operator=(const DisplayCopies&) = delete;
    DisplayCopies(DisplayCopies&&) = delete;
    DisplayCopies& operator=(DisplayCopies&&) = delete;
    virtual ~DisplayCopies() = default;

    /// The display copy of the picture file `path` on the ground `backgroundColour` (red in the
    /// low byte). A picture that is missing or cannot be read shows `alternativeText` instead.
    [[nodiscard]] virtual DisplayCopy draw(
        const std::string& path, std::string_view alternativeText, std::int32_t backgroundColour)
        = 0;
};

} // namespace quillmere
