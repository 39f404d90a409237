// Each level knows behind which other one it is written. Held by fitting_markup_test.cpp.

#include "editor/page/fitting_text.h"

#include "editor/page/attribute_values.h"

#include <utility>

namespace quillmere {

namespace {

constexpr int kMostFormats = 8; // that begin again, so that no depth makes a text grow without end

} // namespace

FittingText::FittingText(
    const SurfacePage& page, const std::vector<std::size_t>& round, std::string_view markup)
    : page_(page)
    , markup_(markup)
    , levels_(page, round)
{
}

void FittingText::put(std::string_view source, MarkupPlace place)
{
    const auto starts = endFormats(place);
    auto& text = textOf(sinkOf(place));
    text += source;
    beginFormats(text, starts);
}

void FittingText::open(Level level, MarkupPlace place)
{
    level.parent = place.level;
    level.reopened = endFormats(place);
    level.sink = sinkOf(place);
    textOf(level.sink) += written(level, level.start);
    levels_.open(std::move(level));
}

void FittingText::close()
{
    const auto closed = levels_.close();
    auto& text = textOf(closed.sink);
    text += written(closed, closed.end);
    text += closed.behind;
    beginFormats(text, closed.reopened);
}

/// Makes a place behind formats one in the innermost level, where they end; returns the tags that
/// begin them again.
std::string FittingText::endFormats(MarkupPlace& place)
{
    std::string starts;
    std::string ends;
    if (place.behind == kNone) return {};
    int count = 0;
    for (auto level = levels_.top(); level != place.level; level = levels_[level].parent) {
        if (!ruleOf(levels_[level].element).isFormat || ++count > kMostFormats) return {};
        const auto start = written(levels_[level], levels_[level].start);
        starts.insert(0, secondTag(start, page_.rules));
        ends += written(levels_[level], levels_[level].end);
    }
    const bool isHere = levels_[levels_.top()].sink == kNone;
    if (isHere && cut_.starts.empty()) cut_ = {ends, starts, here_.size(), 0};
    write(ends);
    place.behind = kNone;
    return starts;
}

void FittingText::beginFormats(std::string& text, const std::string& starts)
{
    if (&text == &here_ && starts == cut_.starts) cut_.lastStart = text.size();
    text += starts;
}

std::string_view FittingText::written(const Level& level, SourceRange tag) const
{
    return tag.in(level.endTag == kNoTag ? std::string_view(page_.text) : markup_);
}

std::size_t FittingText::sinkOf(MarkupPlace place) const
{
    return place.behind == kNone ? levels_[levels_.top()].sink : place.behind;
}

std::vector<PlacedMarkup> FittingText::here(std::size_t offset) const
{
    return piecesOf(here_, cut_, page_.text, offset);
}

std::vector<PlacedMarkup> FittingText::elsewhere() const
{
    std::vector<PlacedMarkup> placed;
    for (std::size_t level = 0; level <= levels_.top(); ++level)
        if (!levels_[level].behind.empty())
            placed.push_back({levels_[level].end.end, levels_[level].behind});
    return placed;
}

} // namespace quillmere
