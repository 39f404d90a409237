// Held by delete_edits_test.cpp and edit_promises_test.cpp.

#include "editor/page/edit_draft.h"
#include "editor/page/page_edits.h"
#include "editor/page/page_places.h"

namespace quillmere {

namespace {

/// Whether a block and the one behind it can become one.
bool areNeighbours(const SurfacePage& page, std::size_t block)
{
    if (block + 1 >= page.blocks.size()) return false;
    const auto& ahead = page.blocks[block];
    const auto& behind = page.blocks[block + 1];
    return ahead.cell == behind.cell && ahead.isAside == behind.isAside;
}

SurfaceEdit deleteBorder(const SurfacePage& page, std::size_t blockAhead)
{
    return deleteRange(page, {blockAhead, itemCount(page.blocks[blockAhead])}, {blockAhead + 1, 0});
}

SurfaceEdit nothing(const SurfacePage& page, PagePlace caret)
{
    return {{}, offsetAt(page, caret)};
}

} // namespace

SurfaceEdit deleteRange(const SurfacePage& page, PagePlace from, PagePlace to)
{
    from = placeOnPage(page, from);
    if (from == placeOnPage(page, to)) return nothing(page, from);
    return EditDraft(page, from, to, FirstFormats::Go).finish();
}

SurfaceEdit deleteBackward(const SurfacePage& page, PagePlace caret)
{
    caret = placeOnPage(page, caret);
    if (caret.offset > 0) return deleteRange(page, {caret.block, caret.offset - 1}, caret);
    if (caret.block > 0 && areNeighbours(page, caret.block - 1))
        return deleteBorder(page, caret.block - 1);
    return nothing(page, caret);
}

SurfaceEdit deleteForward(const SurfacePage& page, PagePlace caret)
{
    caret = placeOnPage(page, caret);
    if (caret.offset < itemCount(page.blocks[caret.block]))
        return deleteRange(page, caret, {caret.block, caret.offset + 1});
    return areNeighbours(page, caret.block) ? deleteBorder(page, caret.block)
                                            : nothing(page, caret);
}

} // namespace quillmere
