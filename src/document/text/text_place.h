#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quillmere {

/// Where something stands in a text, as editors count: both from 1, the column in characters.
struct TextPlace {
    std::size_t line = 1;
    std::size_t column = 1;
    friend bool operator==(const TextPlace&, const TextPlace&) = default;
};

/// Turns offsets of one text into places. A line ends at CR LF, LF or CR.
class TextPlaces {
public:
    explicit TextPlaces(std::string_view text);
    /// An offset behind the end has its place on the last line.
    [[nodiscard]] TextPlace at(std::size_t offset) const;

private:
    std::vector<std::size_t> lineBegins_;
};

} // namespace quillmere
