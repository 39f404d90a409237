#pragma once

#include <cstddef>
#include <string>

namespace quillmere {

/// Cuts pieces out of a text from left to right, in place. What was kept last can be taken back to
/// be read once more, since a cut may join its two sides to a new tag: "<" and "/b>" around a cut.
/// Offsets from position() on are those of the text as it stands; nothing behind them moves before
/// the cutter goes, so that searches from there on stay valid. The text must outlive the cutter.
class TextCutter {
public:
    explicit TextCutter(std::string& text);
    TextCutter(const TextCutter&) = delete;
    TextCutter& operator=(const TextCutter&) = delete;
    TextCutter(TextCutter&&) = delete;
    TextCutter& operator=(TextCutter&&) = delete;
    /// Keeps the rest and closes the gap.
    ~TextCutter();

    /// Where the part begins that is not decided.
    [[nodiscard]] std::size_t position() const { return unread_; }
    /// The number of characters that are kept so far.
    [[nodiscard]] std::size_t kept() const { return kept_; }
    void keepTo(std::size_t offset);
    void dropTo(std::size_t offset) { unread_ = offset; }
    /// Makes up to `count` kept characters unread again, of those behind the first `floor` ones.
    /// At most as many can be taken back as were cut.
    void takeBack(std::size_t count, std::size_t floor);

private:
    std::string& text_;
    std::size_t kept_ = 0; // the kept part is text_[0, kept_)
    std::size_t unread_ = 0; // the part that is not decided begins here
};

} // namespace quillmere
