// Where the rules lose something, markers show nothing: they only make elements. Held by
// surface_page_test.cpp.

#include "editor/page/marker_flow.h"

#include <algorithm>

namespace quillmere {

namespace {

PageElement::Kind kindOf(TagName name)
{
    if (name == TagName::Select) return PageElement::Kind::Select;
    return name == TagName::Option ? PageElement::Kind::Option : PageElement::Kind::Marker;
}

bool changesLook(TagName name)
{
    return name == TagName::Anchor || name == TagName::Preformatted;
}

bool isGroup(TagName name)
{
    return name == TagName::OptionGroup || name == TagName::FieldSet;
}

/// What no pre has in it that is a block of its own.
bool makesBlocks(const MarkupTag& tag)
{
    return tag.name == TagName::Paragraph || tag.name == TagName::Preformatted
        || isTablePart(tag.name);
}

} // namespace

MarkerFlow::MarkerFlow(
    SurfacePage& page, const std::vector<MarkupTag>& tags, OpenFormats& formats, BlockFlow& blocks)
    : page_(page)
    , tags_(tags)
    , formats_(formats)
    , blocks_(blocks)
{
}

void MarkerFlow::note(std::size_t index)
{
    const MarkupTag& tag = tags_[index];
    if (tag.partner == kNoTag || tag.isEnd) return;
    page_.elements.push_back({kindOf(tag.name), tag.source, tags_[tag.partner].source});
}

void MarkerFlow::show(std::size_t index)
{
    const MarkupTag& tag = tags_[index];
    const bool isAtom = tag.name == TagName::Atom;
    const bool isPaired = tag.partner != kNoTag;
    if (!page_.rules.losesNothing() || (!isAtom && !isPaired)) {
        note(index);
        blocks_.tagPassed();
    } else if (isAtom)
        tag.source.begin < hiddenTo_ ? blocks_.tagPassed() : blocks_.addAtom(tag.source);
    else
        tag.isEnd ? showEnd(tag) : showStart(index);
}

void MarkerFlow::showStart(std::size_t index)
{
    const MarkupTag& tag = tags_[index];
    if (tag.name == TagName::Do) hiddenTo_ = std::max(hiddenTo_, tags_[tag.partner].source.begin);
    const auto element = page_.elements.size();
    const bool startsBlock = isBlock(index);
    startsBlock ? blocks_.openParagraph(tag.source) : note(index);
    if (changesLook(tag.name)) formats_.openMarker(tag.name, element);
    if (startsBlock)
        blocks_.formatOpened();
    else if (isGroup(tag.name))
        blocks_.addObject(ItemKind::Marker, tag.source);
    else
        blocks_.tagPassed();
}

void MarkerFlow::showEnd(const MarkupTag& tag)
{
    const auto start = tags_[tag.partner].source;
    if (changesLook(tag.name)) formats_.closeMarker(tag.name, start);
    const bool endsBlock = blocks_.paragraph() == start && blocks_.closeParagraph(tag.source);
    if (tag.name == TagName::FieldSet)
        blocks_.addObject(ItemKind::Marker, tag.source);
    else if (!endsBlock)
        blocks_.tagPassed();
}

/// Whether this is a pre outside of paragraphs with nothing but text in it.
bool MarkerFlow::isBlock(std::size_t index) const
{
    if (tags_[index].name != TagName::Preformatted || blocks_.paragraph()) return false;
    const auto first = tags_.begin() + static_cast<std::ptrdiff_t>(index) + 1;
    const auto end = tags_.begin() + static_cast<std::ptrdiff_t>(tags_[index].partner);
    return std::none_of(first, end, makesBlocks);
}

} // namespace quillmere
