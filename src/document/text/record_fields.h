#pragma once

#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// Binary records of fixed length, read and written field by field. A record type tells its length
// as `kSize` and its layout once, for both directions:
//
//     struct Point {
//         static constexpr std::size_t kSize = 6;
//         std::int32_t x = 0;
//         std::int16_t y = 0;
//         static void eachField(auto& point, auto&& field)
//         {
//             field(0, point.x); // offset in the record, member
//             field(4, point.y);
//         }
//     };
//
// A member is a little-endian number of 16 or 32 bits, a TextField, another record, or an array of
// records that stand one behind the other. What is read and written again is the same bytes.

namespace quillmere {

/// A Windows-1252 text of fixed length, filled with blanks; it may also end at a byte of 0. Keeps
/// all of its bytes, those behind the text as well.
template <std::size_t Length> struct TextField {
    std::array<char, Length> characters = blank();

    /// The text up to its first byte of 0, without the blanks at its ends.
    [[nodiscard]] std::string_view text() const
    {
        const std::string_view all(characters.data(), Length);
        return trimBlanks(all.substr(0, all.find('\0')));
    }
    /// Takes what of `text` has room, and blanks behind it.
    void set(std::string_view text)
    {
        characters.fill(' ');
        text.copy(characters.data(), Length);
    }
    /// Moves the field's content ahead over its leading blanks.
    void trim() { set(std::string(trimBlanks({characters.data(), Length}))); }

    [[nodiscard]] static constexpr std::array<char, Length> blank()
    {
        std::array<char, Length> result{};
        result.fill(' ');
        return result;
    }
};

/// Fills the members of a record from its bytes, of which there are at least the record's length.
class RecordReader {
public:
    explicit RecordReader(std::string_view bytes)
        : bytes_(bytes)
    {
    }

    void operator()(std::size_t offset, std::int16_t& number) const { readNumber(offset, number); }
    void operator()(std::size_t offset, std::int32_t& number) const { readNumber(offset, number); }
    template <std::size_t Length>
    void operator()(std::size_t offset, TextField<Length>& field) const
    {
        bytes_.copy(field.characters.data(), Length, offset);
    }
    template <typename Record> void operator()(std::size_t offset, Record& record) const
    {
        Record::eachField(record, RecordReader(bytes_.substr(offset, Record::kSize)));
    }
    template <typename Record, std::size_t Count>
    void operator()(std::size_t offset, std::array<Record, Count>& records) const
    {
        for (std::size_t i = 0; i < Count; ++i)
            (*this)(offset + i * Record::kSize, records[i]);
    }

private:
    template <typename Number> void readNumber(std::size_t offset, Number& number) const
    {
        using Bits = std::make_unsigned_t<Number>;
        std::uint32_t bits = 0;
        for (std::size_t i = sizeof(Number); i-- > 0;)
            bits = (bits << 8U) | static_cast<unsigned char>(bytes_[offset + i]);
        number = static_cast<Number>(static_cast<Bits>(bits));
    }

    std::string_view bytes_;
};

/// Puts the members of a record into its bytes.
class RecordWriter {
public:
    /// `bytes` has room for the record; they stay the caller's.
    explicit RecordWriter(std::span<char> bytes)
        : bytes_(bytes)
    {
    }

    void operator()(std::size_t offset, std::int16_t number) const { writeNumber(offset, number); }
    void operator()(std::size_t offset, std::int32_t number) const { writeNumber(offset, number); }
    template <std::size_t Length>
    void operator()(std::size_t offset, const TextField<Length>& field) const
    {
        std::copy(field.characters.begin(), field.characters.end(),
            bytes_.subspan(offset, Length).begin());
    }
    template <typename Record> void operator()(std::size_t offset, const Record& record) const
    {
        Record::eachField(record, RecordWriter(bytes_.subspan(offset, Record::kSize)));
    }
    template <typename Record, std::size_t Count>
    void operator()(std::size_t offset, const std::array<Record, Count>& records) const
    {
        for (std::size_t i = 0; i < Count; ++i)
            (*this)(offset + i * Record::kSize, records[i]);
    }

private:
    template <typename Number> void writeNumber(std::size_t offset, Number number) const
    {
        auto bits = static_cast<std::uint32_t>(number);
        for (std::size_t i = 0; i < sizeof(Number); ++i, bits >>= 8U)
            bytes_[offset + i] = static_cast<char>(bits & 0xFFU);
    }

    std::span<char> bytes_;
};

/// The whole records of a file's bytes and, as all lists of records have it, a blank spare one at
/// the end. Bytes behind the last whole record are passed over.
template <typename Record> [[nodiscard]] std::vector<Record> readRecords(std::string_view bytes)
{
    std::vector<Record> records(bytes.size() / Record::kSize + 1);
    for (std::size_t i = 0; i + 1 < records.size(); ++i)
        RecordReader{bytes}(i * Record::kSize, records[i]);
    return records;
}

/// The bytes of a record, behind those of `bytes`.
template <typename Record> void appendRecord(std::string& bytes, const Record& record)
{
    const auto begin = bytes.size();
    bytes.resize(begin + Record::kSize);
    RecordWriter{bytes}(begin, record);
}

} // namespace quillmere
