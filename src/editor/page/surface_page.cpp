// The tags are found first, then markers paired, the frame and the tables found; one walk over the
// tags then makes items, blocks and elements. Held by surface_page_test.cpp.

#include "editor/page/surface_page.h"

#include "document/text/windows1252.h"
#include "editor/page/attribute_values.h"
#include "editor/page/marker_flow.h"
#include "editor/page/marker_pairs.h"
#include "editor/page/page_frame.h"
#include "editor/page/table_flow.h"

#include <utility>

namespace quillmere {

namespace {

std::vector<MarkupTag> tagsOf(std::string_view text)
{
    std::vector<MarkupTag> tags;
    MarkupScanner scanner(text);
    while (const auto tag = scanner.next())
        tags.push_back(*tag);
    pairMarkers(text, tags);
    return tags;
}

/// No text has more items than characters outside of its tags, and one for each tag.
std::size_t mostItems(std::string_view text, const std::vector<MarkupTag>& tags)
{
    std::size_t items = text.size() + tags.size();
    for (const auto& tag : tags)
        items -= tag.source.end - tag.source.begin;
    return items;
}

class PageReader {
public:
    PageReader(SurfacePage& page, std::vector<MarkupTag>& tags)
        : page_(page)
        , tags_(tags)
        , outlines_(outlineTables(page.text, page.content, tags))
        , formats_(page)
        , blocks_(page, formats_)
        , tables_(page, outlines_, formats_, blocks_)
        , markers_(page, tags, formats_, blocks_)
    {
    }
    void read();

private:
    void readTag(std::size_t index);
    void readText(std::size_t end);
    void readFormat(const MarkupTag& tag);
    void readParagraph(const MarkupTag& tag);
    void readObject(std::size_t index);
    [[nodiscard]] ItemKind kindOf(const MarkupTag& tag) const;
    [[nodiscard]] bool isPictureEnd(std::size_t index, std::size_t offset) const;

    SurfacePage& page_;
    const std::vector<MarkupTag>& tags_;
    std::vector<TableOutline> outlines_;
    OpenFormats formats_;
    BlockFlow blocks_;
    TableFlow tables_;
    MarkerFlow markers_;
    std::size_t read_ = 0; // all ahead of it stands on the page
};

void PageReader::read()
{
    read_ = page_.content.begin;
    std::size_t index = 0;
    for (; index < tags_.size() && tags_[index].source.end <= read_; ++index)
        if (isComment(tags_[index].name)) markers_.note(index);
    blocks_.enter(kNone, read_);
    for (; index < tags_.size() && tags_[index].source.begin < page_.content.end; ++index) {
        if (tags_[index].source.begin < read_) continue; // it belongs to the item before it
        readText(tags_[index].source.begin);
        read_ = tags_[index].source.end;
        readTag(index);
    }
    readText(page_.content.end);
    blocks_.leave(page_.content.end);
    formats_.leaveCell(page_.content.end);
    for (; index < tags_.size(); ++index)
        if (isComment(tags_[index].name)) markers_.note(index);
}

void PageReader::readText(std::size_t end)
{
    if (!tables_.isBetweenCells()) blocks_.addText({read_, end});
}

void PageReader::readTag(std::size_t index)
{
    const MarkupTag& tag = tags_[index];
    if (tag.table != kNoTag) return tables_.read(tag, index);
    if (isComment(tag.name))
        tables_.isBetweenCells() ? markers_.note(index) : markers_.show(index);
    else if (isFormat(tag.name))
        readFormat(tag);
    else if (tag.name == TagName::Paragraph)
        readParagraph(tag);
    else
        readObject(index);
}

void PageReader::readFormat(const MarkupTag& tag)
{
    if (tag.isEnd && !formats_.close(tag.name, tag.source))
        return blocks_.addObject(ItemKind::Chip, tag.source);
    if (tag.isEnd) return blocks_.tagPassed();
    const bool isLink = tag.name == TagName::Link;
    const auto kind = isLink ? PageElement::Kind::Link : PageElement::Kind::Format;
    formats_.open(tag.name, page_.elements.size());
    page_.elements.push_back({kind, tag.source, {}});
    isLink ? blocks_.tagPassed() : blocks_.formatOpened();
}

void PageReader::readParagraph(const MarkupTag& tag)
{
    if (!tag.isEnd)
        blocks_.openParagraph(tag.source);
    else if (!blocks_.closeParagraph(tag.source))
        blocks_.addObject(ItemKind::Chip, tag.source);
}

void PageReader::readObject(std::size_t index)
{
    const auto kind = kindOf(tags_[index]);
    if (kind == ItemKind::Picture && isPictureEnd(index + 1, read_))
        read_ = tags_[index + 1].source.end;
    blocks_.addObject(kind, {tags_[index].source.begin, read_});
}

ItemKind PageReader::kindOf(const MarkupTag& tag) const
{
    if (tag.name == TagName::LineBreak) return ItemKind::LineBreak; // </br> as well
    if (tag.isEnd) return ItemKind::Chip;
    if (tag.name == TagName::Picture) return ItemKind::Picture;
    const bool isRadio = tag.name == TagName::Input
        && equalIgnoringCase(attributeOf(tag.source.in(page_.text), "type"), "radio");
    return isRadio ? ItemKind::Radio : ItemKind::Chip;
}

bool PageReader::isPictureEnd(std::size_t index, std::size_t offset) const
{
    if (index == tags_.size()) return false;
    const auto& tag = tags_[index];
    return tag.name == TagName::Picture && tag.isEnd && tag.source.begin == offset;
}

} // namespace

SurfacePage readSurfacePage(std::string text, const OutputRules& rules)
{
    SurfacePage page;
    page.text = std::move(text);
    page.rules = rules;
    auto tags = tagsOf(page.text);
    page.items.reserve(mostItems(page.text, tags));
    page.content = contentOf(page.text, tags);
    PageReader(page, tags).read();
    return page;
}

bool isPreformatted(const SurfacePage& page, const PageBlock& block)
{
    return block.paragraph != kNone
        && page.elements[block.paragraph].start.in(page.text).starts_with("<!--");
}

std::string_view attributeOf(std::string_view tag, std::string_view name)
{
    return findAttribute(tag, name).value_or(std::string_view());
}

} // namespace quillmere
