#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Searching and rewriting of document text. Offsets are 0-based bytes; npos means not found.

namespace quillmere {

inline constexpr std::size_t npos = std::string_view::npos;

/// Whether `key`, which is lower case, stands at `offset` of `text`, ignoring case.
[[nodiscard]] bool standsAt(std::string_view text, std::size_t offset, std::string_view key);

/// The first place at or behind `from` where `key`, which is lower case, stands, ignoring case.
[[nodiscard]] std::size_t findIgnoringCase(
    std::string_view text, std::string_view key, std::size_t from = 0);

/// The last place where `key`, which is lower case, begins ahead of `before`, ignoring case.
[[nodiscard]] std::size_t findLastIgnoringCase(
    std::string_view text, std::string_view key, std::size_t before = npos);

/// Finds one key from places that do not go back, each part of the text being read once however
/// often it is asked. Ignores case. `text` and `key` (lower case) must outlive the finder.
class ForwardFinder {
public:
    ForwardFinder(std::string_view text, std::string_view key);
    /// The first place at or behind `from`; npos where there is none. `from` may also be lower
    /// than before, which costs a search.
    [[nodiscard]] std::size_t next(std::size_t from);

private:
    std::string_view text_;
    std::string_view key_;
    std::size_t askedFrom_ = npos; // the last answer holds for all places from here up to it
    std::size_t answer_ = 0;
};

/// Builds a changed copy of a text from left to right: each part of it is kept or dropped once.
/// The text must outlive the rewriter.
class Rewriter {
public:
    explicit Rewriter(std::string_view source);
    /// Keeps all up to `offset`. An offset that was passed already changes nothing.
    void keepTo(std::size_t offset);
    /// Keeps all up to `begin` and drops what stands from there up to `end`.
    void drop(std::size_t begin, std::size_t end);
    /// Keeps all up to `offset` and puts `text` in there.
    void insert(std::size_t offset, std::string_view text);
    /// The offset in the source up to which all is decided.
    [[nodiscard]] std::size_t position() const { return copied_; }
    /// Keeps the rest and gives the result away.
    [[nodiscard]] std::string take();

private:
    std::string_view source_;
    std::string result_;
    std::size_t copied_ = 0;
};

} // namespace quillmere
