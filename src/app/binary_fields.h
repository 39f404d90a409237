#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Fields of fixed records: texts padded with blanks and numbers of 16 bits, low byte first.

namespace quillmere {

/// Takes the fields of one record in their order. A record that is too short gives "" and 0.
class FieldReader {
public:
    explicit FieldReader(std::string_view record)
        : rest_(record)
    {
    }
    /// The next `width` bytes without the blanks at their ends.
    [[nodiscard]] std::string text(std::size_t width);
    [[nodiscard]] std::int16_t number();

private:
    std::string_view rest_;
};

/// Puts the fields of records at the end of `bytes`, which must outlive the writer.
class FieldWriter {
public:
    explicit FieldWriter(std::string& bytes)
        : bytes_(bytes)
    {
    }
    /// `value`, cut or filled with blanks to `width` bytes.
    void text(std::string_view value, std::size_t width);
    void number(std::int16_t value);

private:
    std::string& bytes_;
};

} // namespace quillmere
