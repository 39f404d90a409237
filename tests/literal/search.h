#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What the slow versions of the text operations search with. Offsets are 0-based; npos stands for
// not found and so lies behind every place: "x exists and does not lie behind y" is x <= y.

namespace quillmere::literal {

inline constexpr std::size_t npos = std::string::npos;

/// Lower case of Windows-1252 letters.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// The first `key` at or behind `from`, ignoring case.
[[nodiscard]] std::size_t find(std::string_view text, std::string_view key, std::size_t from = 0);

/// The last `key` that begins ahead of `before`, ignoring case.
[[nodiscard]] std::size_t findLast(
    std::string_view text, std::string_view key, std::size_t before = npos);

/// Deletes from `begin` through the next '>' at or behind `at`; returns the length that went, which
/// is 0 where there is no such '>' or no such place.
std::size_t deleteThrough(std::string& text, std::size_t begin, std::size_t at);

/// Deletes the tag at `at`.
std::size_t deleteTag(std::string& text, std::size_t at);

/// Deletes every tag `key` from `from` on.
void deleteEvery(std::string& text, std::string_view key, std::size_t from = 0);

/// Without the blanks at its ends.
[[nodiscard]] std::string trim(const std::string& text);

} // namespace quillmere::literal
