// Sizes are bounded before rows are read. Held by wbmp_test.cpp, which reads and writes with the
// one-pixel-at-a-time procedures that these results must equal.

#include "imageconv/wbmp.h"

#include "document/platform/file_failures.h"
#include "document/text/failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace quillmere {

namespace {

constexpr unsigned kMoreBytes = 0x80; // in a byte of a multi-byte integer
constexpr std::size_t kMaxRowBytes = kMaxPictureSidePx / 8 + 1;
constexpr std::size_t kMaxHeaderBytes = 4096; // of a file that is read as a whole
constexpr std::size_t kMaxFileBytes = kMaxHeaderBytes + kMaxRowBytes * kMaxPictureSidePx;

void requireBounded(const PictureSize& size)
{
    if (size.widthPx <= kMaxPictureSidePx && size.heightPx <= kMaxPictureSidePx) return;
    const auto side = std::to_string(kMaxPictureSidePx);
    throw BadPicture("Das Bild ist größer als " + side + " mal " + side + " Punkte.");
}

[[noreturn]] void failCutShort()
{
    throw BadPicture("Das Bild ist unvollständig: Die Datei endet zu früh.");
}

/// One side of a picture, in one byte or two, which tells the first of `bytes`. Of two, the first
/// one has seven bits, and the second one all eight.
std::int32_t sideOf(unsigned first, unsigned second)
{
    const unsigned high = first > 0x7F ? (first - 0x80) * 128 : 0;
    return static_cast<std::int32_t>(high + second);
}

PictureSize readUsualHeader(const ByteSource& next)
{
    const auto byte = [&next]() -> unsigned { return next().value_or(0); };
    byte();
    byte();
    const unsigned first = byte();
    const unsigned second = byte();
    if (first < kMoreBytes && second < kMoreBytes)
        return {static_cast<std::int32_t>(first), static_cast<std::int32_t>(second)};
    const std::int32_t width = sideOf(first, second);
    const unsigned third = byte();
    return {width, sideOf(third, byte())};
}

/// A multi-byte integer: seven bits a byte, the highest ones first. Numbers that are too large for
/// any picture come back as one of these.
std::int32_t readMultiByteInteger(const ByteSource& next)
{
    unsigned value = 0;
    while (true) {
        const auto byte = next();
        if (!byte) failCutShort();
        value = std::min(value * 128 + (*byte & 0x7FU), kMaxPictureSidePx + 1U);
        if (*byte < kMoreBytes) return static_cast<std::int32_t>(value);
    }
}

PictureSize readStandardHeader(const ByteSource& next)
{
    const auto type = readMultiByteInteger(next);
    const auto fixedField = next();
    if (!fixedField) failCutShort();
    if (type != 0 || *fixedField != 0) throw BadPicture("Die Datei ist kein WBMP-Bild des Typs 0.");
    const std::int32_t width = readMultiByteInteger(next);
    return {width, readMultiByteInteger(next)};
}

/// How many bytes of the file a row takes.
std::size_t fileRowBytes(const PictureSize& size, const OutputRules& rules)
{
    const auto width = static_cast<std::size_t>(size.widthPx);
    return rules.standardWbmp() ? (width + 7) / 8 : (width + 1) / 8 + 1;
}

void openPicture(std::ifstream& file, const std::string& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (error) throw cannotRead(path, error);
    if (std::filesystem::is_directory(status))
        throw cannotRead(path, std::make_error_code(std::errc::is_a_directory));
    // Reading a pipe would wait for whoever writes to it.
    if (!std::filesystem::is_regular_file(status))
        throw FileFailure("Das Bild „" + path + "“ ist keine gewöhnliche Datei.");
    file.open(path, std::ios::binary);
    if (!file.is_open()) throw cannotRead(path, {errno, std::generic_category()});
}

template <typename Read> auto namingFile(const std::string& path, Read read)
{
    try {
        return read();
    } catch (const BadPicture& bad) {
        throw BadPicture("Das Bild „" + path + "“ kann nicht gelesen werden. " + bad.utf8());
    }
}

void appendByte(std::string& bytes, std::int32_t value)
{
    bytes += static_cast<char>(value);
}

void appendTwoBytes(std::string& bytes, std::int32_t value)
{
    appendByte(bytes, 0x80 + value / 128);
    appendByte(bytes, value % 128);
}

std::string sizeFields(const PixelSource& source, const OutputRules& rules)
{
    std::string fields;
    const bool isShort = source.maxX() < 128 && source.maxY() < 128;
    for (const std::int32_t largest : {source.maxX(), source.maxY()}) {
        const std::int32_t count = largest + 1;
        if (!rules.standardWbmp() && !isShort) {
            appendTwoBytes(fields, largest);
        } else if (rules.standardWbmp() && count > 127) {
            appendTwoBytes(fields, count);
        } else {
            appendByte(fields, count); // the usual way also 128, which is no one-byte number
        }
    }
    return fields;
}

/// Collects the bits of a row into bytes.
class RowBits {
public:
    explicit RowBits(std::string& bytes)
        : bytes_(bytes)
    {
    }
    void add(bool set)
    {
        byte_ |= static_cast<unsigned>(set) << (7 - used_);
        if (++used_ == 8) writeByte();
    }
    /// Ends the row; a byte without a pixel is written where `always` is set.
    void end(bool always)
    {
        if (always || used_ > 0) writeByte();
    }

private:
    void writeByte()
    {
        bytes_ += static_cast<char>(byte_);
        byte_ = 0;
        used_ = 0;
    }

    std::string& bytes_;
    unsigned byte_ = 0;
    unsigned used_ = 0;
};

void appendRow(RowBits& bits, std::int32_t y, std::int32_t threshold, PixelSource& source,
    const OutputRules& rules)
{
    for (std::int32_t x = 0; x <= source.maxX(); ++x) {
        const std::int32_t pixel = source.GetPixel(x, y);
        const bool readable = pixel >= 0;
        if (readable || rules.standardWbmp()) bits.add(!readable || pixel >= threshold);
        source.yieldToEvents();
    }
    bits.end(!rules.standardWbmp());
}

} // namespace

bool WbmpPicture::isSet(std::int32_t x, std::int32_t y) const
{
    const auto column = static_cast<std::size_t>(x);
    const auto byte = rows[static_cast<std::size_t>(y) * rowBytes() + column / 8];
    return ((static_cast<unsigned char>(byte) >> (7 - column % 8)) & 1U) != 0;
}

PictureSize readWbmpHeader(const ByteSource& next, const OutputRules& rules)
{
    const PictureSize size
        = rules.standardWbmp() ? readStandardHeader(next) : readUsualHeader(next);
    requireBounded(size);
    return size;
}

WbmpPicture readWbmp(std::string_view bytes, const OutputRules& rules)
{
    std::size_t position = 0;
    const auto next = [&]() -> std::optional<unsigned char> {
        if (position >= bytes.size()) return std::nullopt;
        return static_cast<unsigned char>(bytes[position++]);
    };
    WbmpPicture picture{readWbmpHeader(next, rules), {}};
    const auto height = static_cast<std::size_t>(picture.size.heightPx);
    const std::size_t step = fileRowBytes(picture.size, rules);
    if (rules.standardWbmp() && bytes.size() - position < step * height) failCutShort();

    picture.rows.assign(picture.rowBytes() * height, '\0');
    for (std::size_t y = 0; y < height && position < bytes.size(); ++y, position += step)
        bytes.copy(&picture.rows[y * picture.rowBytes()], picture.rowBytes(), position);
    return picture;
}

PictureSize readWbmpSize(const std::string& path, const OutputRules& rules)
{
    std::array<char, 64> buffer{};
    std::ifstream file;
    file.rdbuf()->pubsetbuf(buffer.data(), buffer.size());
    openPicture(file, path);
    std::size_t left = kMaxFileBytes; // a file of 0x80 alone is one number without end
    const auto next = [&]() -> std::optional<unsigned char> {
        const auto byte = left == 0 ? std::ifstream::traits_type::eof() : file.get();
        if (byte == std::ifstream::traits_type::eof()) return std::nullopt;
        --left;
        return static_cast<unsigned char>(byte);
    };
    return namingFile(path, [&] { return readWbmpHeader(next, rules); });
}

WbmpPicture ReadWbmpFile(const std::string& path, const OutputRules& rules)
{
    std::ifstream file;
    openPicture(file, path);
    std::error_code error;
    const auto length = std::filesystem::file_size(path, error);
    std::string bytes(error ? 0 : std::min<std::uintmax_t>(length, kMaxFileBytes), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    if (file.bad()) throw FileFailure("Das Bild „" + path + "“ kann nicht gelesen werden.");
    return namingFile(path, [&] { return readWbmp(bytes, rules); });
}

std::string wbmpBytes(PixelSource& source, const OutputRules& rules)
{
    if (source.maxX() >= kMaxPictureSidePx || source.maxY() >= kMaxPictureSidePx)
        requireBounded({kMaxPictureSidePx + 1, 0});
    std::string bytes(2, '\0');
    bytes += sizeFields(source, rules);
    const std::int32_t threshold = source.threshold();
    RowBits bits(bytes);
    for (std::int32_t y = 0; y <= source.maxY(); ++y)
        appendRow(bits, y, threshold, source, rules);
    return bytes;
}

void WriteWbmpFile(PixelSource& source, WorkFiles& workFiles, const OutputRules& rules,
    std::string& dir, std::string& name)
{
    dir = workFiles.directory();
    name = workFiles.unusedName("WBmp", ".wbmp");
    workFiles.write(dir + name, wbmpBytes(source, rules));
}

} // namespace quillmere
