// Held by the tests of the record files, which read back what they write.

#include "app/binary_fields.h"

#include "document/windows1252.h"

#include <algorithm>

namespace quillmere {

std::string FieldReader::text(std::size_t width)
{
    const auto field = rest_.substr(0, width);
    rest_.remove_prefix(field.size());
    return std::string(trimBlanks(field));
}

std::int16_t FieldReader::number()
{
    if (rest_.size() < 2) return 0;
    const auto low = static_cast<unsigned char>(rest_[0]);
    const auto high = static_cast<unsigned char>(rest_[1]);
    rest_.remove_prefix(2);
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(low | (high << 8)));
}

void FieldWriter::text(std::string_view value, std::size_t width)
{
    const auto kept = value.substr(0, width);
    bytes_.append(kept).append(width - kept.size(), ' ');
}

void FieldWriter::number(std::int16_t value)
{
    const auto bits = static_cast<std::uint16_t>(value);
    bytes_ += static_cast<char>(bits & 0xFFU);
    bytes_ += static_cast<char>(bits >> 8U);
}

} // namespace quillmere
