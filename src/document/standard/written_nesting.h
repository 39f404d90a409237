#pragma once

#include "document/standard/design_pieces.h"

#include <cstddef>
#include <vector>

namespace quillmere {

/// Whether an element is an action or stands in one as its task: do, go.
[[nodiscard]] bool isAction(WmlElement element);

/// The elements that are open in a card, as far as its pieces are written. Each question is
/// answered without a walk, however deep they nest.
class WrittenNesting {
public:
    /// Takes the next piece. Its tag is not written where it `isDissolved`. An end without a start
    /// changes nothing; one with a start ends what stands in that as well.
    void follow(const DesignPiece& piece, bool isDissolved);

    /// The innermost element whose tag is written; Other outside of all.
    [[nodiscard]] WmlElement parent() const;
    [[nodiscard]] bool isInAction() const { return !open_.empty() && open_.back().isInAction; }
    /// Whether the tag that an end of this element belongs to was not written.
    [[nodiscard]] bool isDissolved(WmlElement element) const;

private:
    struct Open {
        WmlElement element;
        bool isDissolved;
        WmlElement parent; ///< of what stands in it: it, or the nearest round it that is written
        bool isInAction; ///< it is one, or one is round it
    };
    [[nodiscard]] bool isOpen(WmlElement element) const;
    void open(WmlElement element, bool isDissolved);
    void close(WmlElement element);

    std::vector<Open> open_;
    std::vector<std::vector<std::size_t>> places_; ///< in `open_`, by element
};

} // namespace quillmere
