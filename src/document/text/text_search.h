#pragma once

#include <algorithm>
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

/// Builds a changed copy of a text from left to right: each part of it is kept or dropped once. It
/// is written into memory taken beforehand. The text must outlive the rewriter.
class Rewriter {
public:
    explicit Rewriter(std::string_view source)
        : source_(source)
    {
    }
    /// Keeps all up to `offset`. An offset that was passed already changes nothing.
    void keepTo(std::size_t offset)
    {
        if (offset <= copied_) return;
        const auto kept = source_.substr(copied_, offset - copied_);
        copied_ += kept.size();
        write(kept);
    }
    /// Keeps all up to `begin` and drops what stands from there up to `end`.
    void drop(std::size_t begin, std::size_t end)
    {
        keepTo(begin);
        copied_ = std::max(copied_, std::min(end, source_.size()));
    }
    /// Keeps all up to `offset` and puts `text` in there.
    void insert(std::size_t offset, std::string_view text)
    {
        keepTo(offset);
        write(text);
    }
    /// Puts `text` in where the last call ended.
    void append(std::string_view text) { write(text); }
    /// How long the result will be where the rest is kept.
    [[nodiscard]] std::size_t length() const { return length_ + source_.size() - copied_; }
    /// The offset in the source up to which all is decided.
    [[nodiscard]] std::size_t position() const { return copied_; }
    /// Whether nothing was decided so far.
    [[nodiscard]] bool isUnchanged() const { return copied_ == 0 && length_ == 0; }
    /// Keeps the rest and gives the result away.
    [[nodiscard]] std::string take();

private:
    void write(std::string_view piece)
    {
        if (result_.size() - length_ < piece.size()) grow(piece.size());
        piece.copy(result_.data() + length_, piece.size());
        length_ += piece.size();
    }
    void grow(std::size_t atLeast);

    std::string_view source_;
    std::string result_; // with memory behind what was written
    std::size_t length_ = 0; // of what was written
    std::size_t copied_ = 0;
};

} // namespace quillmere
