#include "imageconv/wbmp.h"

#include "document/failure.h"
#include "support/random_bytes.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace quillmere {
namespace {

const OutputRules kUsual{false};
const OutputRules kStandard{true};

/// A picture of rows as text, one character a pixel: '#' black, '.' white, '?' cannot be read.
class Drawing final : public PixelSource {
public:
    explicit Drawing(std::vector<std::string> rows, std::int32_t threshold = 10'000'000)
        : rows_(std::move(rows))
        , threshold_(threshold)
    {
    }
    [[nodiscard]] std::int32_t maxX() const override { return int(rows_.front().size()) - 1; }
    [[nodiscard]] std::int32_t maxY() const override { return int(rows_.size()) - 1; }
    [[nodiscard]] std::int32_t GetPixel(std::int32_t x, std::int32_t y) const override
    {
        const char character = rows_[std::size_t(y)][std::size_t(x)];
        return character == '#' ? threshold_ - 1 : character == '.' ? threshold_ : -1;
    }
    [[nodiscard]] std::int32_t threshold() const override { return threshold_; }
    void yieldToEvents() override { ++yields; }

    int yields = 0;

private:
    std::vector<std::string> rows_;
    std::int32_t threshold_;
};

std::string textOf(const WbmpPicture& picture)
{
    std::string text;
    for (std::int32_t y = 0; y < picture.size.heightPx; ++y, text += '\n') {
        for (std::int32_t x = 0; x < picture.size.widthPx; ++x)
            text += picture.isSet(x, y) ? '.' : '#';
    }
    return text;
}

/// The usual reading one pixel and one byte at a time, drawing one row and one column too many.
std::string textByPixels(const std::string& bytes)
{
    std::size_t at = 0;
    const auto get = [&] { return at < bytes.size() ? unsigned(bytes[at++]) & 0xFFU : 0U; };
    get();
    get();
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
    std::vector<std::string> rows(height, std::string(width, '.'));
    unsigned byte = get();
    unsigned bit = 8;
    for (unsigned y = 0; y <= height; ++y) {
        for (unsigned x = 0; x <= width; ++x) {
            if ((byte & (1U << (bit - 1))) == 0 && y < height && x < width) rows[y][x] = '#';
            if (bit < 2) byte = get();
            bit = bit < 2 ? 8 : bit - 1;
        }
        byte = get();
        bit = 8;
    }
    std::string text;
    for (const auto& row : rows)
        text += row + '\n';
    return text;
}

TEST(ReadWbmp, AgreesWithReadingPixelByPixel)
{
    for (unsigned seed = 0; seed < 600; ++seed) {
        auto bytes = test::randomBytes(seed, seed); // files that end early and ones that go on
        if (bytes.size() > 2) bytes[2] = static_cast<char>(0x80 + seed % 2); // two bytes each
        if (bytes.size() > 4) bytes[4] = static_cast<char>(seed % 2);
        if (bytes.size() > 3 && seed % 3 != 0) { // one byte each
            bytes[2] = static_cast<char>(seed % 35);
            bytes[3] = static_cast<char>(seed % 11);
        }
        ASSERT_EQ(textOf(readWbmp(bytes, kUsual)), textByPixels(bytes)) << "seed " << seed;
    }
}

TEST(ReadWbmp, OneByteWidthAheadOfATwoByteHeightIsLost)
{
    const std::string bytes("\0\0\x10\x81\x00\x02", 6);
    const auto picture = readWbmp(bytes, kUsual);
    EXPECT_EQ(picture.size.widthPx, 0x81);
    EXPECT_EQ(picture.size.heightPx, 2);
    EXPECT_THROW((void)readWbmp(bytes, kStandard), BadPicture) << "16 wide, 128 high, no rows";
}

TEST(ReadWbmp, SizesAreBoundedBeforeMemoryIsTaken)
{
    const std::string largest("\0\0\xA0\0\xA0\0", 6); // 32 * 128
    EXPECT_EQ(readWbmp(largest, kUsual).size.widthPx, kMaxPictureSidePx);
    for (const auto& bytes : {std::string("\0\0\xA0\x01\x01\x01", 6),
             std::string("\0\0\x81\x01\xA0\x01", 6), std::string("\0\0\xFF\xFF\xFF\xFF", 6)})
        EXPECT_THROW((void)readWbmp(bytes, kUsual), BadPicture);
    EXPECT_THROW((void)readWbmp(largest, kStandard), BadPicture) << "without its rows";
    const std::string endless = std::string(2, '\0') + std::string(20, '\xFF') + "\x01\x01";
    EXPECT_THROW((void)readWbmp(endless, kStandard), BadPicture);
}

struct HeaderCase {
    const char* name;
    std::string bytes;
    bool good;
};

TEST(ReadWbmp, TheStandardChecksTheHeaderAndTheLength)
{
    const std::string pixels = "\xF0\xAA";
    const HeaderCase rows[] = {
        {"4 by 2", std::string("\0\0\x04\x02", 4) + pixels, true},
        {"bytes behind the rows", std::string("\0\0\x04\x02", 4) + pixels + "more", true},
        {"type and sizes with leading zeros",
            std::string("\x80\x80\0\0\x80\x80\x80\x80\x04\x80\x02", 11) + pixels, true},
        {"no pixels", std::string("\0\0\0\0", 4), true},
        {"type 1", std::string("\x01\0\x04\x02", 4) + pixels, false},
        {"extension headers", std::string("\0\x80\x04\x02", 4) + pixels, false},
        {"half of the last row", std::string("\0\0\x04\x02\xF0", 5), false},
        {"a size that does not end", std::string("\0\0\x04\x82", 4), false},
        {"empty", "", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        if (!row.good) {
            EXPECT_THROW((void)readWbmp(row.bytes, kStandard), BadPicture);
            EXPECT_NO_THROW((void)readWbmp(row.bytes, kUsual));
            continue;
        }
        const auto picture = readWbmp(row.bytes, kStandard);
        EXPECT_EQ(textOf(picture), picture.size.widthPx == 0 ? "" : "....\n.#.#\n");
    }
}

TEST(WriteWbmp, WritesTheUsualForms)
{
    struct Row {
        std::size_t width;
        std::size_t height;
        std::string header;
        std::size_t rowBytes;
    };
    const Row rows[] = {
        {8, 1, {"\0\0\x08\x01", 4}, 2}, // a byte of 0 behind full bytes
        {51, 21, {"\0\0\x33\x15", 4}, 7},
        {128, 128, {"\0\0\x80\x80", 4}, 17},
        {129, 1, {"\0\0\x81\x00\x80\x00", 6}, 17}, // the largest index and not the count
        {201, 51, {"\0\0\x81\x48\x80\x32", 6}, 26},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.width);
        Drawing drawing(std::vector<std::string>(row.height, std::string(row.width, '.')));
        const auto bytes = wbmpBytes(drawing, kUsual);
        EXPECT_EQ(bytes.substr(0, row.header.size()), row.header);
        EXPECT_EQ(bytes.size(), row.header.size() + row.height * row.rowBytes);
        EXPECT_EQ(std::size_t(drawing.yields), row.width * row.height);
    }
}

TEST(WriteWbmp, PixelsBelowTheThresholdAreBlackAndUnreadableOnesAreMissing)
{
    Drawing drawing({"#.#.#.#.#", "?.??#...."});
    EXPECT_EQ(wbmpBytes(drawing, kUsual),
        std::string("\0\0\x09\x02\x55\x00\xBC\x00", 8).substr(0, 7)); // the second row is shorter
    EXPECT_EQ(wbmpBytes(drawing, kStandard), std::string("\0\0\x09\x02\x55\x00\xF7\x80", 8));
}

std::vector<std::string> randomRows(std::size_t width, std::size_t height)
{
    const auto bits = test::randomBytes(width * height, unsigned(width * 1000 + height));
    std::vector<std::string> rows(height, std::string(width, '.'));
    for (std::size_t i = 0; i < bits.size(); ++i) {
        if ((bits[i] & 1) != 0) rows[i / width][i % width] = '#';
    }
    return rows;
}

std::string joined(const std::vector<std::string>& rows)
{
    std::string text;
    for (const auto& row : rows)
        text += row + '\n';
    return text;
}

TEST(WriteWbmp, ByTheStandardComesBackWhole)
{
    for (const std::size_t width : {1U, 7U, 8U, 9U, 127U, 128U, 129U, 255U, 300U}) {
        for (const std::size_t height : {1U, 3U, 128U}) {
            const auto rows = randomRows(width, height);
            Drawing drawing(rows);
            const auto bytes = wbmpBytes(drawing, kStandard);
            ASSERT_EQ(textOf(readWbmp(bytes, kStandard)), joined(rows)) << width << " " << height;
        }
    }
}

TEST(WriteWbmp, TheUsualReaderReadsWhatTheUsualWriterWroteExceptWidthsOneShortOfEight)
{
    for (std::size_t width = 1; width < 70; ++width) {
        const auto rows = randomRows(width, 5);
        Drawing drawing(rows);
        const auto read = textOf(readWbmp(wbmpBytes(drawing, kUsual), kUsual));
        EXPECT_EQ(read == joined(rows), width % 8 != 7) << width;
    }
    // Large pictures lose their last row and column.
    Drawing large(randomRows(200, 3));
    const auto size = readWbmp(wbmpBytes(large, kUsual), kUsual).size;
    EXPECT_EQ(size.widthPx, 199);
    EXPECT_EQ(size.heightPx, 2);
}

TEST(ReadWbmpFile, AHeaderWithoutEndIsGivenUpByBothReaders)
{
    const test::ScratchFolder folder;
    folder.put("lang.wbmp", std::string(3'000'000, '\x80') + std::string("\0\0\x04\x01\xF0", 5));
    EXPECT_THROW((void)readWbmpSize(folder.path() + "lang.wbmp", kStandard), BadPicture);
    EXPECT_THROW((void)ReadWbmpFile(folder.path() + "lang.wbmp", kStandard), BadPicture);
}

TEST(ReadWbmpFile, NamesTheFileThatItCannotRead)
{
    const test::ScratchFolder folder;
    folder.put("kurz.wbmp", "");
    folder.put("gut.wbmp", {"\0\0\x04\x01\xF0", 5});
    std::filesystem::create_directory(folder.path() + "ordner.wbmp");
    EXPECT_EQ(textOf(ReadWbmpFile(folder.path() + "gut.wbmp", kStandard)), "....\n");
    EXPECT_EQ(readWbmpSize(folder.path() + "gut.wbmp", kStandard).widthPx, 4);
    EXPECT_EQ(readWbmpSize(folder.path() + "kurz.wbmp", kUsual).widthPx, 0);
    EXPECT_THROW((void)readWbmpSize(folder.path() + "ordner.wbmp", kUsual), FileFailure);
    EXPECT_THROW((void)ReadWbmpFile(folder.path() + "fehlt.wbmp", kUsual), FileFailure);
    try {
        (void)ReadWbmpFile(folder.path() + "kurz.wbmp", kStandard);
        FAIL() << "read";
    } catch (const BadPicture& bad) {
        EXPECT_EQ(bad.description(),
            "Das Bild " + folder.path() + "kurz.wbmp kann nicht gelesen werden. "
                + "Das Bild ist unvollst\xE4ndig: Die Datei endet zu fr\xFCh.");
    }
}

} // namespace
} // namespace quillmere
