// White space with a line end in it that stands directly at the border of a block is the layout of
// the file, and shows nothing; all other white space of a block is seen. So a typed character never
// makes white space seen that was not before. Held by surface_page_test.cpp.

#include "editor/page/block_flow.h"

#include "document/text/windows1252.h"
#include "editor/page/text_items.h"

namespace quillmere {

namespace {

constexpr char16_t kObjectShown = u'\uFFFC';
constexpr char16_t kLineBreakShown = u'\u2028';

Alignment alignmentOf(std::string_view startTag)
{
    const auto value = attributeOf(startTag, "align");
    if (equalIgnoringCase(value, "center")) return Alignment::Center;
    return equalIgnoringCase(value, "right") ? Alignment::Right : Alignment::Left;
}

} // namespace

BlockFlow::BlockFlow(SurfacePage& page, OpenFormats& formats)
    : page_(page)
    , formats_(formats)
{
}

void BlockFlow::enter(std::size_t cell, std::size_t offset)
{
    contexts_.push_back({.cell = cell});
    beginBlock(offset);
}

void BlockFlow::leave(std::size_t offset)
{
    endBlock(offset, contexts_.back().last != Neighbour::Block);
    endParagraph({offset, offset});
    contexts_.pop_back();
}

void BlockFlow::beginBlock(std::size_t offset)
{
    Context& context = contexts_.back();
    context.begin = offset;
    context.firstItem = page_.items.size();
    context.hasContent = context.hasText = false;
    context.mayOpenFormats = true;
    context.style = formats_.style();
}

void BlockFlow::endBlock(std::size_t offset, bool isNeeded)
{
    const Context& context = contexts_.back();
    if (isNeeded || context.hasContent || context.paragraph != kNone)
        pushBlock(offset);
    else
        page_.items.resize(context.firstItem);
}

void BlockFlow::pushBlock(std::size_t offset)
{
    dropLayoutAtEnd(offset);
    Context& context = contexts_.back();
    if (context.table != kNone) page_.tables[context.table].blockBehind = page_.blocks.size();
    context.table = kNone;
    context.last = Neighbour::Block;
    PageBlock block;
    block.firstItem = context.firstItem;
    block.endItem = page_.items.size();
    block.content = {context.begin, offset};
    block.alignment = context.alignment;
    block.paragraph = context.paragraph;
    block.cell = context.cell;
    block.style = context.style;
    block.isAside = context.hasContent && !context.hasText && context.paragraph == kNone
        && context.cell == kNone;
    page_.blocks.push_back(block);
}

void BlockFlow::dropLayoutAtEnd(std::size_t offset)
{
    if (page_.items.size() == contexts_.back().firstItem) return;
    const PageItem& last = page_.items.back();
    const bool isAtEnd = last.kind == ItemKind::Blank && last.source.end == offset;
    if (isAtEnd && isLayout(last.source.in(page_.text))) page_.items.pop_back();
}

void BlockFlow::endParagraph(SourceRange endTag)
{
    Context& context = contexts_.back();
    if (context.paragraph == kNone) return;
    page_.elements[context.paragraph].end = endTag;
    context.paragraph = kNone;
    context.alignment = Alignment::Left;
}

void BlockFlow::openParagraph(SourceRange startTag)
{
    endBlock(startTag.begin, false);
    endParagraph({startTag.begin, startTag.begin});
    Context& context = contexts_.back();
    context.paragraph = page_.elements.size();
    context.alignment = alignmentOf(startTag.in(page_.text));
    page_.elements.push_back({PageElement::Kind::Paragraph, startTag, {}});
    beginBlock(startTag.end);
}

std::optional<SourceRange> BlockFlow::paragraph() const
{
    const auto open = contexts_.back().paragraph;
    return open == kNone ? std::nullopt : std::optional(page_.elements[open].start);
}

bool BlockFlow::closeParagraph(SourceRange endTag)
{
    if (contexts_.back().paragraph == kNone) return false;
    endBlock(endTag.begin, false);
    endParagraph(endTag);
    beginBlock(endTag.end);
    return true;
}

std::size_t BlockFlow::breakAtTable(std::size_t offset)
{
    endBlock(offset, contexts_.back().last != Neighbour::Block);
    return page_.blocks.size() - 1;
}

void BlockFlow::resumeBehindTable(std::size_t table, std::size_t offset)
{
    contexts_.back().last = Neighbour::Table;
    contexts_.back().table = table;
    beginBlock(offset);
}

void BlockFlow::addText(SourceRange range)
{
    if (range.empty()) return;
    Context& context = contexts_.back();
    if (range.begin == context.begin) range = withoutLayoutAhead(page_.text, range);
    const bool hasContent = appendText(page_, range, formats_.style());
    context.hasContent |= hasContent;
    context.hasText |= hasContent;
    if (!range.empty()) context.mayOpenFormats = false;
}

void BlockFlow::addObject(ItemKind kind, SourceRange source)
{
    addItem(kind, source);
    contexts_.back().hasText = true;
}

void BlockFlow::addAtom(SourceRange source)
{
    addItem(ItemKind::Chip, source);
}

void BlockFlow::addItem(ItemKind kind, SourceRange source)
{
    const auto shown = kind == ItemKind::LineBreak ? kLineBreakShown : kObjectShown;
    page_.items.push_back({source, shown, kind, formats_.style()});
    contexts_.back().hasContent = true;
    contexts_.back().mayOpenFormats = false;
}

void BlockFlow::formatOpened()
{
    Context& context = contexts_.back();
    if (context.mayOpenFormats) context.style = formats_.style();
}

void BlockFlow::tagPassed()
{
    contexts_.back().mayOpenFormats = false;
}

} // namespace quillmere
