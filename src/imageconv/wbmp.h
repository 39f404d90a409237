#pragma once

#include "document/platform/work_files.h"
#include "document/text/output_rules.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// WBMP pictures of type 0: one bit a pixel, not compressed (WAP-237, Media Types). By the standard
// rules that is all of it. Otherwise files are read and written as this program always has:
//
// - If a size is above 128, both are written in two bytes each, as the largest index and not as the
//   count. A size of 128 is one byte 0x80, which every reader takes for the first of two.
// - Sizes are read as one byte each or as two bytes each.
// - A row whose pixels fill its last byte is followed by a byte of 0. The reader counts with one
//   pixel more in a row, so it passes over that byte; pictures of other programs shear where their
//   width is a multiple of 8, and all pictures where it is one less than that.
// - The header's first two bytes are not looked at, and a file that ends early goes on as bytes of
//   0.

namespace quillmere {

/// Largest width and height of a picture that is read or written.
inline constexpr std::int32_t kMaxPictureSidePx = 4096;

struct PictureSize {
    std::int32_t widthPx = 0;
    std::int32_t heightPx = 0;
};

struct WbmpPicture {
    PictureSize size;
    std::string rows; ///< rowBytes() for each row, top to bottom; first pixel in the highest bit
    [[nodiscard]] std::size_t rowBytes() const
    {
        return (static_cast<std::size_t>(size.widthPx) + 7) / 8;
    }
    /// A set bit is white, a clear one black.
    [[nodiscard]] bool isSet(std::int32_t x, std::int32_t y) const;
};

/// Gives the bytes of a file, one at each call; nullopt behind the last.
using ByteSource = std::function<std::optional<unsigned char>()>;

/// Reads the size of a picture; `next` then stands at the first byte of its rows. Throws BadPicture
/// for a side above kMaxPictureSidePx; by the standard rules also for another type, for a header
/// with extensions and for a file that ends in its header.
[[nodiscard]] PictureSize readWbmpHeader(const ByteSource& next, const OutputRules& rules);

/// Reads a picture out of the bytes of its file. Throws BadPicture like readWbmpHeader, and by the
/// standard rules for a file that ends ahead of its last row.
[[nodiscard]] WbmpPicture readWbmp(std::string_view bytes, const OutputRules& rules);

/// Reads the header of a file, and no more of it. Throws FileFailure for what is no file or cannot
/// be read, BadPicture like readWbmpHeader; both name the file.
[[nodiscard]] PictureSize readWbmpSize(const std::string& path, const OutputRules& rules);

/// Reads a picture file, of which no more is taken into memory than the largest picture has. Throws
/// like readWbmpSize and readWbmp.
[[nodiscard]] WbmpPicture ReadWbmpFile(const std::string& path, const OutputRules& rules);

/// Where a picture that becomes a WBMP comes from: a drawing surface.
class PixelSource {
public:
    PixelSource() = default;
    PixelSource(const PixelSource&) = delete;
    PixelSource& operator=(const PixelSource&) = delete;
    PixelSource(PixelSource&&) = delete;
    PixelSource& operator=(PixelSource&&) = delete;
    virtual ~PixelSource() = default;

    /// The largest column and row index.
    [[nodiscard]] virtual std::int32_t maxX() const = 0;
    [[nodiscard]] virtual std::int32_t maxY() const = 0;
    /// The pixel's colour, red in the low byte; negative where it cannot be read.
    [[nodiscard]] virtual std::int32_t GetPixel(std::int32_t x, std::int32_t y) const = 0;
    /// The smallest colour number that becomes white.
    [[nodiscard]] virtual std::int32_t threshold() const = 0;
    /// Called behind each pixel, so that a window stays alive.
    virtual void yieldToEvents() { }
};

/// The bytes of a WBMP file. A pixel that cannot be read has no bit, so that its row comes out
/// shorter; by the standard rules it is white. Throws BadPicture for a side above
/// kMaxPictureSidePx.
[[nodiscard]] std::string wbmpBytes(PixelSource& source, const OutputRules& rules);

/// Writes a new WBMP file among the work files. `dir` and `name` are set ahead of the conversion
/// and the writing, so that the caller has them after a failure as well. Throws FileFailure,
/// Overflow where all names are taken, BadPicture.
void WriteWbmpFile(PixelSource& source, WorkFiles& workFiles, const OutputRules& rules,
    std::string& dir, std::string& name);

} // namespace quillmere
