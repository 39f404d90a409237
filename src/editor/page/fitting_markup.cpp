// Each tag of the markup is asked for the innermost open element that it may stand in. Held by
// fitting_markup_test.cpp.

#include "editor/page/fitting_markup.h"

#include "editor/page/card_head.h"
#include "editor/page/clip_tags.h"
#include "editor/page/fitting_text.h"
#include "editor/page/markup_tags.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillmere {

namespace {

using E = WmlElement;

constexpr std::string_view kLineBreak = "<br/>";

/// What means nothing without the element that it belongs to.
bool isPart(E element)
{
    constexpr E kParts[]
        = {E::Row, E::Cell, E::Go, E::Prev, E::Refresh, E::Noop, E::SetVar, E::PostField};
    return std::ranges::find(kParts, element) != std::end(kParts);
}

bool isOfTable(E element)
{
    return element == E::Row || element == E::Cell;
}

bool isParagraph(E element)
{
    return element == E::Paragraph || element == E::Pre;
}

/// What can give its text alone.
bool givesText(E element)
{
    return ruleOf(element).isFormat || element == E::Link || element == E::Anchor
        || isParagraph(element);
}

bool isText(std::string_view atom)
{
    return atom.starts_with("<!--#entity") || atom.starts_with("<!--#cdata");
}

bool isBlank(std::string_view text)
{
    return std::ranges::all_of(text, isWhite);
}

class MarkupFitter {
public:
    MarkupFitter(const SurfacePage& page, std::size_t offset, const std::vector<std::size_t>& round,
        std::string_view markup)
        : page_(page)
        , offset_(offset)
        , markup_(markup)
        , tags_(readClipTags(markup))
        , text_(page, round, markup)
    {
    }

    FittingMarkup take(std::span<const SourceRange> going)
    {
        takeMarkup();
        FittingMarkup fitting{text_.here(offset_), text_.elsewhere()};
        putHead(fitting, headOf(page_, going));
        return fitting;
    }

private:
    void takeMarkup()
    {
        std::size_t read = 0;
        for (std::uint32_t i = 0; i < tags_.size(); ++i) {
            const auto source = tags_[i].tag.source;
            if (source.begin < read) continue; // of an element that is left out
            takeText(markup_.substr(read, source.begin - read));
            read = source.end;
            if (!isLeftOut(tags_[i]))
                takeTag(i);
            else if (isOfTable(tags_[i].element))
                takeText(text_.isEmpty() ? "" : " ");
            else if (tags_[i].tag.partner != kNoTag)
                read = tags_[tags_[i].tag.partner].tag.source.end;
        }
        takeText(markup_.substr(read));
    }

    [[nodiscard]] bool isLeftOut(const ClipTag& tag) const
    {
        if (tag.tag.isEnd) return false;
        const bool isButton = tag.tag.name == TagName::Input; // of an option, with which it goes
        if (isButton) return !isInMarkup() || levels_[top()].element != E::Option;
        return isPart(tag.element) && !(isInMarkup() && levels_.mayStand(top(), tag.element));
    }

    void takeTag(std::uint32_t index)
    {
        const auto& [tag, element] = tags_[index];
        if (tag.name == TagName::Input || isText(sourceOf(index)))
            takeText(sourceOf(index));
        else if (element == E::Other)
            text_.write(sourceOf(index));
        else if (tags_[index].isSingle())
            takeSingle(index);
        else if (tag.isEnd)
            takeEnd(index);
        else if (tag.partner != kNoTag)
            takeStart(index);
    }

    void takeText(std::string_view text)
    {
        if (levels_.holdsText(top()) || isBlank(text)) return text_.write(text);
        text_.writeBehind(levels_.closedToText(), text);
    }

    void takeSingle(std::uint32_t index)
    {
        const auto element = tags_[index].element;
        const std::string source(sourceOf(index));
        if (isOfHead(element) && !(isInMarkup() && levels_.mayStand(top(), element)))
            return noteForHead(element, source);
        const bool isHere = levels_.mayStand(top(), element);
        if (element == E::LineBreak && !isHere && levels_.holdsText(top())) return text_.write(" ");
        if (const auto place = levels_.placeFor(element)) text_.put(source, *place);
    }

    void takeStart(std::uint32_t index)
    {
        const auto element = tags_[index].element;
        const bool joinsList = element == E::Select && levels_.isWithin(top(), E::Select);
        const bool isText
            = givesText(element) && levels_.holdsText(top()) && !levels_.mayStand(top(), element);
        if (isText && isParagraph(element) && !text_.isEmpty())
            text_.write(levels_.mayStand(top(), E::LineBreak) ? kLineBreak : " ");
        const auto place = joinsList || isText ? std::nullopt : levels_.placeFor(element);
        if (!place) return;
        const auto end = tags_[index].tag.partner;
        Level level{.element = element};
        level.start = tags_[index].tag.source;
        level.end = tags_[end].tag.source;
        level.endTag = end;
        text_.open(std::move(level), *place);
    }

    /// The end of an element that gave its text alone is that of no level.
    void takeEnd(std::uint32_t index)
    {
        if (levels_[top()].endTag == index) text_.close();
    }

    void noteForHead(E element, const std::string& source)
    {
        if (element == E::OnEvent) events_ += source;
        if (element == E::Timer && timer_.empty()) timer_ = source;
    }

    void putHead(FittingMarkup& fitting, const CardHead& head) const
    {
        const auto markup = head.hasTimer ? events_ : events_ + timer_;
        if (!markup.empty()) fitting.elsewhere.push_back({head.eventsEnd, markup});
    }

    [[nodiscard]] std::string_view sourceOf(std::uint32_t index) const
    {
        return tags_[index].tag.source.in(markup_);
    }

    [[nodiscard]] bool isInMarkup() const { return levels_[top()].endTag != kNoTag; }

    [[nodiscard]] std::size_t top() const { return levels_.top(); }

    const SurfacePage& page_;
    std::size_t offset_;
    std::string_view markup_;
    std::vector<ClipTag> tags_;
    FittingText text_;
    const OpenLevels& levels_ = text_.levels();
    std::string events_;
    std::string timer_;
};

} // namespace

std::vector<std::size_t> elementsRound(const SurfacePage& page, std::size_t offset)
{
    std::vector<std::size_t> round;
    for (std::size_t i = 0; i < page.elements.size(); ++i) {
        const auto& element = page.elements[i];
        const bool holds = element.start.begin >= page.content.begin && element.start.end <= offset
            && element.end.begin >= offset;
        if (holds) round.push_back(i);
    }
    return round;
}

bool mayStand(const SurfacePage& page, const std::vector<std::size_t>& round, E element)
{
    const OpenLevels levels(page, round);
    return levels.mayStand(levels.top(), element);
}

FittingMarkup fittingMarkup(const SurfacePage& page, std::size_t offset,
    const std::vector<std::size_t>& round, std::string_view markup,
    std::span<const SourceRange> going)
{
    return MarkupFitter(page, offset, round, markup).take(going);
}

} // namespace quillmere
