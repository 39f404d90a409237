// A display copy has few colours, so a palette keeps the files small, and the packed rows of a WBMP
// become rows of a BMP as they are. Held by wbmp_display_copies_test.cpp and, with a viewer's
// reader, by alternative_text_painter_qt_test.cpp.

#include "imageconv/bmp_writer.h"

#include <cstddef>
#include <string_view>

namespace quillmere {

namespace {

constexpr std::size_t kFileHeaderBytes = 14;
constexpr std::size_t kInfoHeaderBytes = 40;
constexpr std::size_t kColourBytes = 4;
constexpr std::uint32_t kPixelsPerMetre = 3780; // 96 dots per inch

/// Appends the `count` low bytes of `value`, the lowest one first.
void append(std::string& bytes, std::size_t value, int count)
{
    for (int i = 0; i < count; ++i, value >>= 8U)
        bytes += static_cast<char>(value & 0xFFU);
}

std::size_t rowBytes(const IndexedPicture& picture)
{
    const auto bits = static_cast<std::size_t>(picture.bitsPerPixel);
    return (static_cast<std::size_t>(picture.widthPx) * bits + 7) / 8;
}

std::size_t paddedRowBytes(const IndexedPicture& picture)
{
    return (rowBytes(picture) + 3) / 4 * 4;
}

void appendHeaders(std::string& bytes, const IndexedPicture& picture)
{
    const std::size_t pixelBytes
        = paddedRowBytes(picture) * static_cast<std::size_t>(picture.heightPx);
    const std::size_t pixelsAt
        = kFileHeaderBytes + kInfoHeaderBytes + picture.palette.size() * kColourBytes;
    bytes += "BM";
    append(bytes, pixelsAt + pixelBytes, 4);
    append(bytes, 0, 4); // reserved
    append(bytes, pixelsAt, 4);

    append(bytes, kInfoHeaderBytes, 4);
    append(bytes, static_cast<std::size_t>(picture.widthPx), 4);
    append(bytes, static_cast<std::size_t>(picture.heightPx), 4); // positive: from the last row up
    append(bytes, 1, 2); // planes
    append(bytes, static_cast<std::size_t>(picture.bitsPerPixel), 2);
    append(bytes, 0, 4); // not compressed
    append(bytes, pixelBytes, 4);
    append(bytes, kPixelsPerMetre, 4);
    append(bytes, kPixelsPerMetre, 4);
    append(bytes, picture.palette.size(), 4);
    append(bytes, 0, 4); // all colours matter
}

void appendPalette(std::string& bytes, const std::vector<std::int32_t>& palette)
{
    for (const std::int32_t colour : palette) {
        for (const unsigned shift : {16U, 8U, 0U}) // blue first, which is the highest byte here
            append(bytes, static_cast<std::uint32_t>(colour) >> shift, 1);
        append(bytes, 0, 1);
    }
}

} // namespace

std::string bmpBytes(const IndexedPicture& picture)
{
    std::string bytes;
    appendHeaders(bytes, picture);
    appendPalette(bytes, picture.palette);
    const std::size_t width = rowBytes(picture);
    const std::string padding(paddedRowBytes(picture) - width, '\0');
    const std::string_view rows = picture.rows;
    for (auto y = static_cast<std::size_t>(picture.heightPx); y-- > 0;)
        bytes.append(rows.substr(y * width, width)).append(padding);
    return bytes;
}

} // namespace quillmere
