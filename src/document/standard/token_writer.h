#pragma once

#include "document/wml/wml_token.h"

#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Puts the tokens of a changed deck together: those of the file and such that are written anew.
class TokenWriter {
public:
    explicit TokenWriter(std::span<const WmlToken> file)
        : file_(file)
    {
    }
    /// Tokens of the file, by their indices.
    void copy(std::uint32_t first, std::uint32_t behind);
    /// Text in place of tokens of the file, at the place that they had.
    void put(std::string text);
    /// New text, which is laid out as its neighbours are. What is added in turn is one text.
    void addNew(std::string_view text) { new_ += text; }

    /// The tokens so far.
    [[nodiscard]] std::vector<WmlToken> take();
    /// The texts that tokens not of the file are slices of.
    [[nodiscard]] std::deque<std::string> takeTexts() { return std::move(texts_); }

private:
    void append(std::string text, bool isNew);
    void endNew();

    std::span<const WmlToken> file_;
    std::vector<WmlToken> tokens_;
    std::deque<std::string> texts_; // whose texts stay where they are
    std::string new_;
};

} // namespace quillmere
