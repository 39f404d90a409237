#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Insertions and deletions that were found at any places of a text, for one rewriting of it.
/// Offsets are those of the unchanged text; inserted texts must live until the edits are applied.
class TextEdits {
public:
    /// What is inserted at one place stands in the order of the calls.
    void insert(std::size_t offset, std::string_view text) { replace(offset, offset, text); }
    void drop(std::size_t begin, std::size_t end) { replace(begin, end, {}); }
    void replace(std::size_t begin, std::size_t end, std::string_view text);

    /// Changes `text`, in place, and forgets the edits. Throws Overflow, with `text` unchanged,
    /// where the result is longer than positions can tell.
    void applyTo(std::string& text);

private:
    struct Edit {
        std::size_t begin;
        std::size_t end;
        std::string_view text;
    };
    std::vector<Edit> edits_;
};

} // namespace quillmere
