#include "imageconv/wbmp.h"

#include "document/text/failure.h"
#include "imageconv/bmp_writer.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

const OutputRules kUsual{false};
const OutputRules kStandard{true};

/// A picture of rows as text, one character a pixel: '#' black, '.' white, '?' cannot be read.
class Drawing final : public PixelSource {
public:
    explicit Drawing(std::vector<std::string> rows)
        : rows_(std::move(rows))
    {
    }
    [[nodiscard]] std::int32_t maxX() const override { return int(rows_.front().size()) - 1; }
    [[nodiscard]] std::int32_t maxY() const override { return int(rows_.size()) - 1; }
    [[nodiscard]] std::int32_t GetPixel(std::int32_t x, std::int32_t y) const override
    {
        const char character = rows_[std::size_t(y)][std::size_t(x)];
        return character == '#' ? threshold() - 1 : character == '.' ? threshold() : -1;
    }
    [[nodiscard]] std::int32_t threshold() const override { return 10'000'000; }
    void yieldToEvents() override { ++yields; }
    int yields = 0;

private:
    std::vector<std::string> rows_;
};

using Rows = std::vector<std::string>;

Rows rowsOf(const WbmpPicture& picture)
{
    Rows rows(std::size_t(picture.size.heightPx));
    for (std::int32_t y = 0; y < picture.size.heightPx; ++y)
        for (std::int32_t x = 0; x < picture.size.widthPx; ++x)
            rows[std::size_t(y)] += picture.isSet(x, y) ? '.' : '#';
    return rows;
}

/// The usual reading one pixel and one byte at a time, drawing one row and one column too many.
Rows rowsByPixels(const std::string& bytes)
{
    std::size_t at = 2;
    const auto get = [&] { return at < bytes.size() ? unsigned(bytes[at++]) & 0xFFU : 0U; };
    unsigned a = get();
    unsigned b = get();
    unsigned width = a;
    unsigned height = b;
    if (a > 0x7F || b > 0x7F) {
        width = a > 0x7F ? (a - 128) * 128 + b : b;
        a = get();
        b = get();
        height = a > 0x7F ? (a - 128) * 128 + b : b;
    }
    Rows rows(height, std::string(width, '.'));
    for (unsigned y = 0; y <= height; ++y) {
        unsigned byte = get();
        unsigned bit = 8;
        for (unsigned x = 0; x <= width; ++x) {
            if ((byte & (1U << (bit - 1))) == 0 && y < height && x < width) rows[y][x] = '#';
            if (bit < 2) byte = get();
            bit = bit < 2 ? 8 : bit - 1;
        }
    }
    return rows;
}

TEST(ReadWbmp, AgreesWithReadingPixelByPixel)
{
    for (unsigned seed = 0; seed < 600; ++seed) {
        auto bytes = test::randomBytes(seed, seed); // files that end early and ones that go on
        bytes.resize(std::max<std::size_t>(bytes.size(), 5));
        const bool isShort = seed % 3 != 0; // one byte for each size, else two
        bytes[2] = static_cast<char>(isShort ? seed % 35 : 0x7F + seed % 3);
        bytes[isShort ? 3 : 4] = static_cast<char>(isShort ? seed % 11 : seed % 2);
        ASSERT_EQ(rowsOf(readWbmp(bytes, kUsual)), rowsByPixels(bytes)) << "seed " << seed;
    }
    const std::string lostWidth("\0\0\x10\x81\x00\x02", 6); // one byte ahead of two
    EXPECT_EQ(readWbmp(lostWidth, kUsual).size.widthPx, 0x81);
}

TEST(ReadWbmp, RefusesByTheStandardWhatIsNone)
{
    const std::pair<std::string, bool> rows[] = {
        {{"\0\0\x04\x02\xF0\xAA", 6}, true}, {{"\0\0\x04\x02\xF0\xAAmore", 10}, true},
        {{"\x80\x80\0\0\x80\x80\x80\x80\x04\x80\x02\xF0\xAA", 13}, true}, // leading zeros
        {{"\0\0\0\0", 4}, true}, // no pixels
        {{"\x01\0\x04\x02\xF0\xAA", 6}, false}, // another type
        {{"\0\x80\x04\x02\xF0\xAA", 6}, false}, // extension headers
        {{"\0\0\x04\x02\xF0", 5}, false}, // half of the last row
        {{"\0\0\x04\x82", 4}, false}, // a size that does not end
        {"", false}, {{"\0\0\xA0\0\xA0\0", 6}, false}, // as large as can be, without its rows
    };
    for (const auto& [bytes, isGood] : rows) {
        EXPECT_NO_THROW((void)readWbmp(bytes, kUsual));
        if (!isGood) {
            EXPECT_THROW((void)readWbmp(bytes, kStandard), BadPicture) << bytes.size();
        } else if (bytes.size() > 4) {
            EXPECT_EQ(rowsOf(readWbmp(bytes, kStandard)), (Rows{"....", ".#.#"}));
        }
    }
    // A side beyond 4096.
    for (const auto& bytes : {std::string("\0\0\xA0\x01\x01\x01", 6),
             std::string("\0\0\x81\x01\xA0\x01", 6), std::string("\0\0\xFF\xFF\xFF\xFF", 6)})
        for (const auto& rules : {kUsual, kStandard})
            EXPECT_THROW((void)readWbmp(bytes + std::string(9000, '.'), rules), BadPicture);
    const std::string endless = std::string(2, '\0') + std::string(20, '\xFF') + "\x01\x01";
    EXPECT_THROW((void)readWbmp(endless, kStandard), BadPicture);
}

TEST(WriteWbmp, ComesBackWholeButForTheUsualWidthsOneShortOfEight)
{
    constexpr std::string_view kPixels[] = {"#", "."};
    for (const std::size_t width : {1U, 7U, 8U, 9U, 63U, 127U, 128U, 129U, 255U, 300U}) {
        for (const std::size_t height : {1U, 3U, 128U}) {
            SCOPED_TRACE(std::to_string(width) + " by " + std::to_string(height));
            Rows rows;
            while (rows.size() < height)
                rows.push_back(test::randomSoup(width + rows.size(), kPixels, width));
            Drawing drawing(rows);
            EXPECT_EQ(rowsOf(readWbmp(wbmpBytes(drawing, kStandard), kStandard)), rows);
            if (std::max(width, height) > 127)
                continue; // large ones lose their last row and column
            const auto read = rowsOf(readWbmp(wbmpBytes(drawing, kUsual), kUsual));
            EXPECT_EQ(read == rows, width % 8 != 7 || height == 1);
        }
    }
}

TEST(BmpWriter, WritesRowsFromTheBottomAndPadsThem)
{
    const std::string expected(
        "BM\x46\0\0\0\0\0\0\0\x3E\0\0\0" // file header: 70 bytes, pixels at 62
        "\x28\0\0\0\x09\0\0\0\x02\0\0\0\x01\0\x01\0\0\0\0\0\x08\0\0\0"
        "\xC4\x0E\0\0\xC4\x0E\0\0\x02\0\0\0\0\0\0\0"
        "\x11\x22\x33\0\xFF\xFF\xFF\0" // blue first
        "\x02\0\0\0\x01\x80\0\0",
        70);
    EXPECT_EQ(bmpBytes({9, 2, 1, {0x00112233, 0x00FFFFFF}, {"\x01\x80\x02\x00", 4}}), expected);
}

} // namespace
} // namespace quillmere
