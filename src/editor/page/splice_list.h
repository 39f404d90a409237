#pragma once

#include "editor/page/page_edits.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Gathers changes of a text in any order and gives them as the splices of an edit.
class SpliceList {
public:
    /// Takes a piece out. Pieces may touch and overlap, and may come twice.
    void remove(SourceRange piece) { changes_.push_back({piece, {}}); }
    /// Puts text in at an offset; what comes later stands behind what came first. An offset within
    /// a piece that is taken out counts as the place that is left of it.
    void insert(std::size_t offset, std::string text);
    /// Puts text in place of a piece.
    void replace(SourceRange piece, std::string text);
    void append(const SpliceList& other);
    [[nodiscard]] bool empty() const { return changes_.empty(); }
    /// The splices by their place, none touching another.
    [[nodiscard]] std::vector<Splice> take() &&;

private:
    std::vector<Splice> changes_;
};

/// The text after the splices, however long.
[[nodiscard]] std::string spliced(std::string_view text, const std::vector<Splice>& splices);

} // namespace quillmere
