#pragma once

#include "document/text/text_search.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Insertions and deletions that were found at any places of a text, for one rewriting of it.
/// Offsets are those of the unchanged text, which is no longer than positions can tell.
class TextEdits {
public:
    /// What is inserted at one place stands in the order of the calls.
    void insert(std::size_t offset, std::string_view text) { replace(offset, offset, text); }
    void drop(std::size_t begin, std::size_t end) { replace(begin, end, {}); }
    /// Throws Overflow where what is inserted alone is longer than positions can tell.
    void replace(std::size_t begin, std::size_t end, std::string_view text);

    [[nodiscard]] bool empty() const { return edits_.empty(); }

    /// Changes `text`, in place, and forgets the edits. Throws Overflow, with `text` unchanged,
    /// where the result is longer than positions can tell.
    void applyTo(std::string& text);

private:
    // 16 bits hold every offset and, with a place or two for each tag, the number of edits. Small
    // pieces of memory are used again by the next operation, large ones go back to the system.
    using Offset = std::uint16_t;
    struct Edit {
        Offset begin;
        Offset end;
        Offset insertedBegin;
        Offset insertedEnd;
    };

    void makeWith(Rewriter& rewriter, const Edit& edit) const;
    /// The indexes of the edits by place, those of one place in the order of the calls.
    [[nodiscard]] std::vector<Offset> sortedByPlace(std::size_t textSize) const;
    [[nodiscard]] bool isSorted() const;

    std::deque<Edit> edits_;
    std::string inserted_;
};

} // namespace quillmere
