// A format is taken whole or not at all: as long as one touches the region without lying in it, the
// region grows. Held by text_formats_test.cpp.

#include "editor/elements/format_units.h"

#include "document/wml/wml_elements.h"
#include "editor/page/atom_marker.h"
#include "editor/page/markup_tags.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

bool holds(const PageElement& element, SourceRange source)
{
    return element.start.end <= source.begin && element.end.begin >= source.end;
}

/// Whether what stands between two units keeps a pair of tags from holding both. A link that is a
/// unit holds its own tags.
bool isBorder(std::string_view text, SourceRange gap)
{
    MarkupScanner tags(text.substr(0, gap.end), gap.begin);
    while (const auto tag = tags.next()) {
        const bool isPlain = isFormat(tag->name) && tag->name != TagName::Link;
        const bool isSingle = tag->name == TagName::Comment || tag->name == TagName::Atom;
        if (!isPlain && !isSingle) return true;
    }
    return false;
}

/// Whether a format may hold an item: an atom where the rules of WML allow its element there.
bool takesFormats(const SurfacePage& page, const PageItem& item)
{
    if (!isObject(item.kind) || item.kind == ItemKind::Picture) return true;
    const auto atom = readAtom(item.source.in(page.text));
    return !atom.name.empty() && page.rules.losesNothing()
        && mayContain(WmlElement::Bold, wmlElement(atom.name));
}

class UnitReader {
public:
    explicit UnitReader(const SurfacePage& page)
        : page_(page)
    {
    }

    std::vector<FormatUnit> read()
    {
        for (const auto& block : page_.blocks)
            readBlock(block);
        markLists();
        return std::move(units_);
    }

private:
    void readBlock(const PageBlock& block)
    {
        for (auto item = block.firstItem; item < block.endItem;) {
            const auto link = page_.styles[page_.items[item].style].link;
            auto unit = link == kNone ? unitOf(item) : linkUnit(link, item, block.endItem);
            const bool isFirst = item == block.firstItem;
            if (block.isAside) unit.takesFormats = false;
            unit.startsPiece = isFirst || !unit.takesFormats || !units_.back().takesFormats
                || isBorder(page_.text, {units_.back().source.end, unit.source.begin});
            item = unit.endItem;
            units_.push_back(unit);
        }
    }

    [[nodiscard]] FormatUnit unitOf(std::size_t item) const
    {
        FormatUnit unit;
        unit.source = page_.items[item].source;
        unit.firstItem = item;
        unit.endItem = item + 1;
        unit.isBlank = page_.items[item].kind == ItemKind::Blank;
        unit.takesFormats = takesFormats(page_, page_.items[item]);
        unit.takesSizes = !page_.styles[page_.items[item].style].fixedPitch;
        return unit;
    }

    /// All of a link, or the one item where the link reaches over the border of a block or list.
    [[nodiscard]] FormatUnit linkUnit(std::size_t link, std::size_t item, std::size_t end) const
    {
        auto unit = unitOf(item);
        while (unit.endItem < end && page_.styles[page_.items[unit.endItem].style].link == link)
            ++unit.endItem;
        const auto& element = page_.elements[link];
        if (element.kind == Kind::Link ? !hasPlainTags(unit, element) : !hasAllOf(unit, element))
            return unitOf(item);
        unit.source = element.whole();
        unit.isBlank = false;
        unit.takesFormats |= page_.rules.losesNothing(); // an anchor may begin with its action
        return unit;
    }

    [[nodiscard]] bool hasPlainTags(const FormatUnit& unit, const PageElement& link) const
    {
        return !isBorder(page_.text, {link.start.end, unit.source.begin})
            && !isBorder(page_.text, {page_.items[unit.endItem - 1].source.end, link.end.begin});
    }

    /// An anchor has its action between its items.
    [[nodiscard]] bool hasAllOf(const FormatUnit& unit, const PageElement& anchor) const
    {
        const bool begins = unit.firstItem == 0
            || page_.items[unit.firstItem - 1].source.end <= anchor.start.begin;
        return begins
            && (unit.endItem == page_.items.size()
                || page_.items[unit.endItem].source.begin >= anchor.end.end);
    }

    void markLists()
    {
        for (const auto& element : page_.elements) {
            if (element.kind != Kind::Select && element.kind != Kind::Option) continue;
            for (auto& unit : units_)
                if (holds(element, unit.source)) unit.takesFormats = false;
        }
    }

    const SurfacePage& page_;
    std::vector<FormatUnit> units_;
};

bool overlaps(SourceRange one, SourceRange other)
{
    return one.begin < other.end && one.end > other.begin;
}

/// Grows to hold each format that touches it.
SourceRange grown(const SurfacePage& page, SourceRange region)
{
    for (bool grows = true; grows;) {
        grows = false;
        for (const auto& element : page.elements) {
            const auto whole = element.whole();
            const bool touches = whole.begin <= region.end && whole.end >= region.begin;
            const bool isWithin = whole.begin >= region.begin && whole.end <= region.end;
            if (element.kind != Kind::Format || !touches || isWithin) continue;
            region = {std::min(region.begin, whole.begin), std::max(region.end, whole.end)};
            grows = true;
        }
    }
    return region;
}

/// Whether a format lies in a link that stays as it is.
bool liesInPlainLink(const FormatRegion& region, const PageElement& format)
{
    return std::ranges::any_of(region.units, [whole = format.whole()](const FormatUnit& unit) {
        return !unit.isMarked && unit.source.begin < whole.begin && unit.source.end > whole.end;
    });
}

void addFormat(FormatRegion& region, const SurfacePage& page, const PageElement& format)
{
    region.oldTags.push_back(format.start);
    if (!format.end.empty()) region.oldTags.push_back(format.end);
    for (auto& unit : region.units) {
        const SourceRange items{
            page.items[unit.firstItem].source.begin, page.items[unit.endItem - 1].source.end};
        auto* const starts = page.rules.losesNothing() ? &unit.starts : nullptr;
        if (holds(format, items)) addFormat(unit.flags, format.start.in(page.text), starts);
    }
}

SourceRange spanOfMarked(std::vector<FormatUnit>& units, SourceRange marked)
{
    SourceRange span{kNone, 0};
    for (std::size_t i = 0; i < units.size(); ++i) {
        units[i].isMarked = overlaps(units[i].source, marked);
        if (!units[i].isMarked) continue;
        const bool isBehindBlank = i > 0 && units[i - 1].isBlank && !units[i].startsPiece;
        const auto begin = isBehindBlank ? units[i - 1].source.begin : units[i].source.begin;
        span = {std::min(span.begin, begin), std::max(span.end, units[i].source.end)};
    }
    return span;
}

} // namespace

FormatRegion formatRegion(const SurfacePage& page, SourceRange marked)
{
    FormatRegion region{UnitReader(page).read(), {}};
    const auto span = spanOfMarked(region.units, marked);
    if (span.begin == kNone) return {};
    const auto whole = grown(page, span);
    std::erase_if(region.units, [whole](const FormatUnit& unit) {
        return unit.source.begin < whole.begin || unit.source.end > whole.end;
    });
    for (const auto& element : page.elements) {
        if (element.kind != Kind::Format || !overlaps(element.whole(), whole)) continue;
        if (!liesInPlainLink(region, element)) addFormat(region, page, element);
    }
    return region;
}

} // namespace quillmere
