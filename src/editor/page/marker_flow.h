#pragma once

#include "editor/page/block_flow.h"
#include "editor/page/markup_tags.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quillmere {

/// Makes the elements of a page of its markers, which it is given from left to right, and shows
/// those that show something.
class MarkerFlow {
public:
    /// All must outlive this; the tags have their partners.
    MarkerFlow(SurfacePage& page, const std::vector<MarkupTag>& tags, OpenFormats& formats,
        BlockFlow& blocks);

    /// A marker or comment of the frame, or between the cells of a table.
    void note(std::size_t index);
    /// One in the content.
    void show(std::size_t index);

private:
    void showStart(std::size_t index);
    void showEnd(const MarkupTag& tag);
    [[nodiscard]] bool isBlock(std::size_t index) const;

    SurfacePage& page_;
    const std::vector<MarkupTag>& tags_;
    OpenFormats& formats_;
    BlockFlow& blocks_;
    std::size_t hiddenTo_ = 0; // atoms ahead of it lie in a do block
};

} // namespace quillmere
