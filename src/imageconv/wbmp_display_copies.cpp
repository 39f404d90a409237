// A picture that cannot be read must not keep a deck from being opened, so here, and only here,
// such failures end in the picture's alternative text. Held by wbmp_display_copies_test.cpp.

#include "imageconv/wbmp_display_copies.h"

#include "document/platform/files.h"
#include "document/text/failure.h"
#include "imageconv/bmp_writer.h"
#include "skins/palette.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

constexpr std::size_t kMaxTextLength = 12;
constexpr std::int32_t kWhite = 0xFFFFFF;
constexpr int kShades = 256;

/// What `read` gives for the file; nullopt for a picture that is missing or cannot be read.
template <typename Read>
auto ifReadable(const std::string& path, const OutputRules& rules, Read read)
    -> std::optional<decltype(read(path, rules))>
{
    // A deck may name thousands of missing pictures, and an exception for each is slow.
    if (!regularFileExists(path)) return std::nullopt;
    try {
        return read(path, rules);
    } catch (const FileFailure&) {
        return std::nullopt;
    } catch (const BadPicture&) {
        return std::nullopt;
    }
}

std::string shortened(std::string_view text)
{
    if (text.empty()) return " ";
    if (text.size() <= kMaxTextLength) return std::string(text);
    return std::string(text.substr(0, kMaxTextLength)) + "...";
}

/// The 8 bits of a colour from bit `shift` on.
int part(std::int32_t colour, int shift)
{
    return (colour >> shift) & 0xFF;
}

/// The colour of text that can be read on `ground`: that of a picture's clear bits, and white where
/// the ground is too dark for it. The palette's colour nearest to the ground cannot serve, since it
/// often is the ground itself.
std::int32_t textColourOn(std::int32_t ground)
{
    constexpr int kDark = 80; // of 255
    const int brightness // by the weights of ITU-R BT.601, in percent
        = (30 * part(ground, 0) + 59 * part(ground, 8) + 11 * part(ground, 16)) / 100;
    return brightness < kDark ? kWhite : kClearBitColour;
}

/// Colours from the ground to the text, by coverage.
std::vector<std::int32_t> shades(std::int32_t ground, std::int32_t text)
{
    std::vector<std::int32_t> palette;
    for (int coverage = 0; coverage < kShades; ++coverage) {
        std::int32_t colour = 0;
        for (const int shift : {0, 8, 16}) {
            const int from = part(ground, shift);
            colour |= (from + (part(text, shift) - from) * coverage / (kShades - 1)) << shift;
        }
        palette.push_back(colour);
    }
    return palette;
}

std::string drawText(TextCoverage text, std::int32_t ground)
{
    return bmpBytes({text.widthPx, text.heightPx, 8, shades(ground, textColourOn(ground)),
        std::move(text.pixels)});
}

DisplayCopy copyOf(const PictureSize& size, std::int32_t ground, std::string bmp)
{
    return {std::move(bmp), size.heightPx, size.widthPx, GetNearestColor(ground).colour};
}

} // namespace

std::string drawPicture(const WbmpPicture& picture, std::int32_t ground)
{
    if (picture.rows.empty()) return bmpBytes({1, 1, 1, {ground, ground}, std::string(1, '\0')});
    return bmpBytes(
        {picture.size.widthPx, picture.size.heightPx, 1, {kClearBitColour, ground}, picture.rows});
}

WbmpDisplayCopies::WbmpDisplayCopies(const OutputRules& rules, AlternativeTextPainter& painter)
    : rules_(rules)
    , painter_(painter)
{
}

DisplayCopy WbmpDisplayCopies::draw(
    const std::string& path, std::string_view alternativeText, std::int32_t backgroundColour)
{
    const auto picture = ifReadable(path, rules_, ReadWbmpFile);
    if (picture)
        return copyOf(picture->size, backgroundColour, drawPicture(*picture, backgroundColour));
    auto text = painter_.paint(shortened(alternativeText));
    return copyOf({}, backgroundColour, drawText(std::move(text), backgroundColour));
}

WbmpSizes::WbmpSizes(const OutputRules& rules)
    : rules_(rules)
{
}

DisplayCopy WbmpSizes::draw(
    const std::string& path, std::string_view /*alternativeText*/, std::int32_t backgroundColour)
{
    const auto size = ifReadable(path, rules_, readWbmpSize);
    return copyOf(size.value_or(PictureSize{}), backgroundColour, {});
}

} // namespace quillmere
