#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// Walks the lines of a text without their ends. A line ends at CR LF, LF or CR; there is none
/// behind the last end. The text must outlive the reader.
class LineReader {
public:
    explicit LineReader(std::string_view text);
    /// The next line; nullopt at the end.
    [[nodiscard]] std::optional<std::string_view> next();

private:
    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t nextCr_ = 0; // the first ones at or behind position_
    std::size_t nextLf_ = 0;
};

/// The lines of a text with nothing between them.
[[nodiscard]] std::string joinLines(std::string_view text);

/// The lines of a text, each with CR LF behind it.
[[nodiscard]] std::string withCrLf(std::string_view text);

} // namespace quillmere
