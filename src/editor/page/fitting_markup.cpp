// The elements round the place and those of the markup that are open stand on one stack of levels,
// each with the level that it stands in and the text that it is written to. Held by
// fitting_markup_test.cpp.

#include "editor/page/fitting_markup.h"

#include "editor/page/card_head.h"
#include "editor/page/clip_tags.h"
#include "editor/page/format_cut.h"
#include "editor/page/markup_tags.h"
#include "editor/page/open_levels.h"

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

bool isOfHead(E element)
{
    return element == E::OnEvent || element == E::Timer;
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
        , levels_(page, round)
    {
    }

    FittingMarkup take()
    {
        takeMarkup();
        result_.here = piecesOf(here_, cut_, page_.text, offset_);
        putHead();
        for (std::size_t level = 0; level <= top(); ++level)
            if (!levels_[level].behind.empty())
                result_.elsewhere.push_back({levels_[level].end.end, levels_[level].behind});
        return std::move(result_);
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
            write(sourceOf(index));
        else if (tags_[index].isSingle())
            takeSingle(index);
        else if (tag.isEnd)
            close(index);
        else if (tag.partner != kNoTag)
            takeStart(index);
    }

    void takeText(std::string_view text)
    {
        if (levels_.holdsText(top()) || isBlank(text)) return write(text);
        levels_[levels_.closedToText()].behind += text;
    }

    void takeSingle(std::uint32_t index)
    {
        const auto element = tags_[index].element;
        const std::string source(sourceOf(index));
        if (isOfHead(element) && !(isInMarkup() && levels_.mayStand(top(), element)))
            return noteForHead(element, source);
        const bool isHere = levels_.mayStand(top(), element);
        if (element == E::LineBreak && !isHere && levels_.holdsText(top())) return write(" ");
        auto place = levels_.placeFor(element);
        if (!place) return;
        const auto reopened = endFormats(*place);
        textAt(*place) += source;
        beginFormats(textAt(*place), reopened);
    }

    void takeStart(std::uint32_t index)
    {
        const auto element = tags_[index].element;
        const bool joinsList = element == E::Select && levels_.isWithin(top(), E::Select);
        const bool isText
            = givesText(element) && levels_.holdsText(top()) && !levels_.mayStand(top(), element);
        if (isText && isParagraph(element) && !here_.empty())
            write(levels_.mayStand(top(), E::LineBreak) ? kLineBreak : " ");
        auto place = joinsList || isText ? std::nullopt : levels_.placeFor(element);
        if (place) open(index, *place);
    }

    void open(std::uint32_t index, MarkupPlace place)
    {
        Level level{.element = tags_[index].element, .parent = place.level};
        level.reopened = endFormats(place);
        level.sink = sinkOf(place);
        level.start = tags_[index].tag.source;
        level.endTag = tags_[index].tag.partner;
        level.end = tags_[level.endTag].tag.source;
        textAt(place) += sourceOf(index);
        levels_.open(std::move(level));
    }

    void close(std::uint32_t index)
    {
        if (levels_[top()].endTag != index) return; // its element gave its text alone
        const auto closed = levels_.close();
        auto& text = textOf(closed.sink).append(sourceOf(index));
        beginFormats(text, closed.reopened);
        text += closed.behind;
    }

    void noteForHead(E element, const std::string& source)
    {
        if (element == E::OnEvent) events_ += source;
        if (element == E::Timer && timer_.empty()) timer_ = source;
    }

    void putHead()
    {
        if (events_.empty() && timer_.empty()) return;
        const auto head = headOf(page_);
        if (head.hasTimer) timer_.clear();
        if (!(events_ + timer_).empty())
            result_.elsewhere.push_back({head.eventsEnd, events_ + timer_});
    }

    [[nodiscard]] std::string_view sourceOf(std::uint32_t index) const
    {
        return tags_[index].tag.source.in(markup_);
    }

    [[nodiscard]] bool isInMarkup() const { return levels_[top()].endTag != kNoTag; }

    [[nodiscard]] std::size_t top() const { return levels_.top(); }

    /// Ends the formats that alone keep something from where it may stand; it goes there then.
    /// Returns the tags that begin them again.
    std::string endFormats(MarkupPlace& place)
    {
        std::string starts;
        std::string ends;
        if (place.behind == kNone) return {};
        for (auto level = top(); level != place.level; level = levels_[level].parent) {
            if (!ruleOf(levels_[level].element).isFormat) return {};
            starts.insert(0, written(levels_[level], levels_[level].start));
            ends += written(levels_[level], levels_[level].end);
        }
        if (cut_.starts.empty() && levels_[top()].sink == kNone)
            cut_ = {ends, starts, here_.size(), 0};
        write(ends);
        place.behind = kNone;
        return starts;
    }

    void beginFormats(std::string& text, const std::string& starts)
    {
        if (&text == &here_ && starts == cut_.starts) cut_.lastStart = text.size();
        text += starts;
    }

    [[nodiscard]] std::string_view written(const Level& level, SourceRange tag) const
    {
        return tag.in(level.endTag == kNoTag ? std::string_view(page_.text) : markup_);
    }

    [[nodiscard]] std::size_t sinkOf(MarkupPlace place) const
    {
        return place.behind == kNone ? levels_[top()].sink : place.behind;
    }

    std::string& textOf(std::size_t sink) { return sink == kNone ? here_ : levels_[sink].behind; }
    std::string& textAt(MarkupPlace place) { return textOf(sinkOf(place)); }
    void write(std::string_view text) { textOf(levels_[top()].sink) += text; }

    const SurfacePage& page_;
    std::size_t offset_;
    std::string_view markup_;
    std::vector<ClipTag> tags_;
    OpenLevels levels_;
    FittingMarkup result_;
    std::string here_;
    FormatCut cut_;
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

FittingMarkup fittingMarkup(const SurfacePage& page, std::size_t offset,
    const std::vector<std::size_t>& round, std::string_view markup)
{
    return MarkupFitter(page, offset, round, markup).take();
}

} // namespace quillmere
