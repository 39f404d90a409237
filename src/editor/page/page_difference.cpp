// Blocks, cells and tables are held against each other one by one; in the one block whose items are
// not the same, what it has in common at its start and at its end stays. Held by
// edit_promises_test.cpp.

#include "editor/page/page_difference.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

class Comparison {
public:
    Comparison(const SurfacePage& shown, const SurfacePage& wanted)
        : shown_(shown)
        , wanted_(wanted)
    {
    }

    [[nodiscard]] bool haveSameShape() const
    {
        return std::ranges::equal(shown_.tables, wanted_.tables, sameTable)
            && std::ranges::equal(shown_.cells, wanted_.cells, sameCell)
            && std::ranges::equal(shown_.blocks, wanted_.blocks,
                [this](const auto& a, const auto& b) { return sameBlock(a, b); });
    }

    [[nodiscard]] bool haveSameItems(std::size_t block) const
    {
        const auto& old = shown_.blocks[block];
        return itemCount(old) == itemCount(wanted_.blocks[block])
            && alikeFromStart(block) == itemCount(old);
    }

    [[nodiscard]] ItemChange changeOf(std::size_t block) const
    {
        const auto& old = shown_.blocks[block];
        const auto& anew = wanted_.blocks[block];
        const auto start = alikeFromStart(block);
        auto end = std::min(itemCount(old), itemCount(anew)) - start;
        for (std::size_t i = 1; i <= end; ++i)
            if (!sameItem(old.endItem - i, anew.endItem - i)) end = i - 1;
        return {{block, start}, itemCount(old) - start - end, anew.firstItem + start,
            anew.endItem - end};
    }

private:
    static bool sameTable(const PageTable& a, const PageTable& b)
    {
        return a.outerCell == b.outerCell && a.rows == b.rows && a.columns == b.columns
            && a.border == b.border && a.blockAhead == b.blockAhead
            && a.blockBehind == b.blockBehind;
    }

    static bool sameCell(const PageCell& a, const PageCell& b)
    {
        return a.table == b.table && a.row == b.row && a.column == b.column
            && a.columnSpan == b.columnSpan && a.firstBlock == b.firstBlock
            && a.endBlock == b.endBlock;
    }

    [[nodiscard]] bool sameBlock(const PageBlock& a, const PageBlock& b) const
    {
        const bool areEmpty = itemCount(a) == 0 && itemCount(b) == 0;
        return a.alignment == b.alignment && a.cell == b.cell && a.isAside == b.isAside
            && (a.paragraph == kNone) == (b.paragraph == kNone)
            && (!areEmpty || sameStyle(a.style, b.style));
    }

    [[nodiscard]] std::size_t alikeFromStart(std::size_t block) const
    {
        const auto& old = shown_.blocks[block];
        const auto& anew = wanted_.blocks[block];
        const auto common = std::min(itemCount(old), itemCount(anew));
        std::size_t alike = 0;
        while (alike < common && sameItem(old.firstItem + alike, anew.firstItem + alike))
            ++alike;
        return alike;
    }

    [[nodiscard]] bool sameItem(std::size_t old, std::size_t anew) const
    {
        const auto& a = shown_.items[old];
        const auto& b = wanted_.items[anew];
        if (a.kind != b.kind || a.shown != b.shown || !sameStyle(a.style, b.style)) return false;
        return !isObject(a.kind) || a.source.in(shown_.text) == b.source.in(wanted_.text);
    }

    [[nodiscard]] bool sameStyle(std::size_t old, std::size_t anew) const
    {
        TextStyle a = styleIn(shown_, old);
        TextStyle b = styleIn(wanted_, anew);
        const bool leadAlike = tagOfLink(shown_, a) == tagOfLink(wanted_, b);
        a.link = b.link = kNone;
        return leadAlike && a == b;
    }

    static TextStyle styleIn(const SurfacePage& page, std::size_t style)
    {
        return style < page.styles.size() ? page.styles[style] : TextStyle{};
    }

    /// The start tag of the link that a style lies in; "" for none.
    static std::string_view tagOfLink(const SurfacePage& page, const TextStyle& style)
    {
        if (style.link == kNone) return {};
        return page.elements[style.link].start.in(page.text);
    }

    const SurfacePage& shown_;
    const SurfacePage& wanted_;
};

} // namespace

std::optional<ItemChange> differenceOf(const SurfacePage& shown, const SurfacePage& wanted)
{
    const Comparison pages(shown, wanted);
    if (!pages.haveSameShape()) return std::nullopt;
    std::optional<std::size_t> changed;
    for (std::size_t block = 0; block < shown.blocks.size(); ++block) {
        if (pages.haveSameItems(block)) continue;
        if (changed) return std::nullopt;
        changed = block;
    }
    return changed ? pages.changeOf(*changed) : ItemChange{};
}

} // namespace quillmere
