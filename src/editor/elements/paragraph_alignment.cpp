// The lines are told apart on the page as it is; each change of a paragraph is then a splice of its
// own, at the border of two lines. Held by paragraph_alignment_test.cpp.

#include "editor/elements/paragraph_alignment.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "editor/elements/format_tags.h"
#include "editor/elements/page_lines.h"
#include "editor/page/attribute_values.h"
#include "editor/page/card_head.h"
#include "editor/page/markup_tags.h"

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

constexpr std::string_view kParagraphEnd = "</p>";
constexpr std::string_view kLineBreak = "<br/>";

constexpr std::array<std::string_view, 3> kParagraphTags{
    "<p>", "<p align=\"center\">", "<p align=\"right\">"};

/// A change at the border of a line: ahead of it or behind it.
struct BorderSplice {
    SourceRange removed;
    std::string inserted;
    bool isAhead = true;
};

bool isMarked(const PageLine& line, SourceRange marked)
{
    return marked.empty() ? line.source.begin <= marked.begin && line.source.end >= marked.begin
                          : line.source.begin < marked.end && line.source.end > marked.begin;
}

/// Indices of the lines that are marked: from the first to behind the last. Of a text and a table
/// that both touch the caret it is the text.
std::pair<std::size_t, std::size_t> markedLines(
    const std::vector<PageLine>& lines, SourceRange marked)
{
    std::size_t first = lines.size();
    std::size_t end = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!isMarked(lines[i], marked)) continue;
        const bool isBetter = marked.empty() && first < i && lines[first].isTable;
        if (first == lines.size() || isBetter) first = i;
        if (!marked.empty() || first == i) end = i + 1;
    }
    if (first < end || marked.empty()) return {first, std::max(first, end)};
    return markedLines(lines, {marked.begin, marked.begin}); // a line break alone
}

class LineAlignment {
public:
    LineAlignment(const SurfacePage& page, SourceRange marked, Alignment alignment)
        : page_(page)
        , lines_(pageLines(page))
        , wanted_(alignment)
    {
        std::tie(first_, end_) = markedLines(lines_, marked);
        if (page.rules.losesNothing()) headEnd_ = headOf(page).end;
    }

    std::vector<BorderSplice> take()
    {
        for (std::size_t i = first_; i < end_;) {
            auto end = i + 1;
            while (end < end_ && lines_[end].paragraph == lines_[i].paragraph
                && lines_[end].mayAlign == lines_[i].mayAlign)
                ++end;
            if (lines_[i].mayAlign && lines_[i].alignment != wanted_) align(i, end);
            i = end;
        }
        return std::move(splices_);
    }

private:
    void align(std::size_t first, std::size_t end)
    {
        if (lines_[first].paragraph == kNone) return wrap(first, end);
        const auto old = startTag(first).in(page_.text);
        if (isInSameParagraph(first - 1, first))
            cut(first, secondTag(alignedTag(old), page_.rules), true);
        else if (!joinAhead(first))
            splices_.push_back({startTag(first), alignedTag(old), true});
        if (isInSameParagraph(end - 1, end))
            cut(end, secondTag(old, page_.rules), false);
        else
            joinBehind(end);
    }

    /// The start tag of a paragraph as it is to be; where nothing is lost with its other
    /// attributes.
    [[nodiscard]] std::string alignedTag(std::string_view old) const
    {
        std::string tag(paragraphTag(wanted_));
        if (!page_.rules.losesNothing()) return tag;
        return tag.insert(tag.size() - 1, otherAttributes(old, {"align"}));
    }

    /// Puts a paragraph round lines that have none. A <br> to a line beside them goes, since the
    /// paragraph's border takes its place.
    void wrap(std::size_t first, std::size_t end)
    {
        auto lines = SourceRange{lines_[first].source.begin, lines_[end - 1].source.end};
        lines.begin = std::min(std::max(lines.begin, headEnd_), lines.end);
        const auto [begin, last] = page_.rules.losesNothing() ? withoutHalves(lines) : lines;
        if (begin >= last && !lines.empty()) return;
        const bool takesBreakAhead = first > 0 && begin == lines.begin && hasBreakBetween(first);
        const auto ahead = takesBreakAhead ? lines_[first - 1].source.end : begin;
        const bool takesBreakBehind = last == lines.end && hasBreakBetween(end);
        const auto behind = takesBreakBehind ? lines_[end].source.begin : last;
        splices_.push_back({{ahead, begin},
            CloseOpenParagraphs(page_, kNone, begin, paragraphTag(wanted_)), true});
        splices_.push_back(
            {{last, behind}, CloseOpenParagraphs(page_, kNone, last, kParagraphEnd), false});
    }

    /// A range without the starts and ends of elements whose other half lies outside of it.
    [[nodiscard]] SourceRange withoutHalves(SourceRange range) const
    {
        for (const auto& element : page_.elements) {
            if (element.kind == PageElement::Kind::Format) continue;
            const bool starts
                = element.start.begin >= range.begin && element.start.end <= range.end;
            const bool ends = element.end.begin >= range.begin && element.end.end <= range.end;
            if (ends && !starts) range.begin = element.end.end;
            if (starts && !ends) range.end = element.start.begin;
        }
        return range;
    }

    /// Whether a <br> or </br> and nothing else parts a line from the one ahead, and neither is
    /// empty.
    [[nodiscard]] bool hasBreakBetween(std::size_t line) const
    {
        if (line >= lines_.size() || lines_[line].source.empty() || lines_[line - 1].source.empty())
            return false;
        const auto end = lines_[line - 1].source.end;
        return standsAt(page_.text, end, "<br") || standsAt(page_.text, end, "</br");
    }

    /// Puts the border of two paragraphs between a line and the one ahead of it.
    void cut(std::size_t line, std::string_view opening, bool isAhead)
    {
        const auto begin = lines_[line].source.begin;
        const bool isAtTable = lines_[line - 1].isTable || lines_[line].isTable;
        const SourceRange between{isAtTable ? begin : lines_[line - 1].source.end, begin};
        splices_.push_back({between,
            CloseOpenParagraphs(page_, lines_[line].paragraph, between.begin, opening), isAhead});
    }

    [[nodiscard]] bool isInSameParagraph(std::size_t line, std::size_t next) const
    {
        return line < lines_.size() && next < lines_.size()
            && lines_[line].paragraph == lines_[next].paragraph;
    }

    [[nodiscard]] SourceRange startTag(std::size_t line) const
    {
        return page_.elements[lines_[line].paragraph].start;
    }

    [[nodiscard]] Alignment alignmentAfter(std::size_t line) const
    {
        return line >= first_ && line < end_ ? wanted_ : lines_[line].alignment;
    }

    /// From the end tag of the paragraph ahead of a line to behind the line's own start tag;
    /// nullopt where something else stands there.
    [[nodiscard]] std::optional<SourceRange> border(std::size_t line) const
    {
        if (line == 0 || line >= lines_.size()) return std::nullopt;
        const auto ahead = lines_[line - 1].paragraph;
        if (ahead == kNone || lines_[line].paragraph == kNone) return std::nullopt;
        const auto end = page_.elements[ahead].end;
        const SourceRange gap{end.end, startTag(line).begin};
        if (gap.begin > gap.end || !std::ranges::all_of(gap.in(page_.text), isWhite))
            return std::nullopt;
        return SourceRange{end.begin, startTag(line).end};
    }

    [[nodiscard]] bool join(std::size_t line, bool isAhead)
    {
        const auto between = border(line);
        if (!between) return false;
        const bool needsBreak = !lines_[line - 1].isTable && !lines_[line].isTable;
        splices_.push_back({*between, needsBreak ? std::string(kLineBreak) : "", isAhead});
        return true;
    }

    [[nodiscard]] bool mayJoin() const
    {
        return wanted_ == Alignment::Left && !page_.rules.losesNothing();
    }

    [[nodiscard]] bool joinAhead(std::size_t line)
    {
        const bool fits = mayJoin() && line > 0 && alignmentAfter(line - 1) == Alignment::Left;
        return fits && join(line, true);
    }

    /// A paragraph that is aligned as well joins by itself.
    void joinBehind(std::size_t line)
    {
        const bool fits
            = mayJoin() && line < lines_.size() && lines_[line].alignment == Alignment::Left;
        if (fits) static_cast<void>(join(line, false));
    }

    const SurfacePage& page_;
    std::vector<PageLine> lines_;
    Alignment wanted_;
    std::size_t first_ = 0;
    std::size_t end_ = 0;
    std::size_t headEnd_ = 0; // events may stand ahead of text without a paragraph
    std::vector<BorderSplice> splices_;
};

/// Where an offset comes to stand: what is put in ahead of a line moves the places at its begin,
/// what is put in behind it does not move those at its end.
std::size_t moved(std::size_t offset, const std::vector<BorderSplice>& splices)
{
    std::size_t place = offset;
    for (const auto& splice : splices) {
        const bool isAhead = splice.removed.end < offset
            || (splice.removed.end == offset && (splice.isAhead || !splice.removed.empty()));
        if (isAhead)
            place = place + splice.inserted.size() - (splice.removed.end - splice.removed.begin);
    }
    return place;
}

} // namespace

std::string_view paragraphTag(Alignment alignment)
{
    return kParagraphTags.at(static_cast<std::size_t>(alignment));
}

Alignment alignmentOf(std::string_view text, SourceRange marked, const OutputRules& rules)
{
    const auto lines = pageLines(readSurfacePage(std::string(text), rules));
    const auto [first, end] = markedLines(lines, marked);
    return first < end ? lines[first].alignment : Alignment::Left;
}

bool takesNoAlignment(std::string_view text, SourceRange marked, const OutputRules& rules)
{
    const auto lines = pageLines(readSurfacePage(std::string(text), rules));
    const auto [first, end] = markedLines(lines, marked);
    return std::none_of(lines.begin() + static_cast<std::ptrdiff_t>(first),
        lines.begin() + static_cast<std::ptrdiff_t>(end),
        [](const PageLine& line) { return line.mayAlign; });
}

bool holdsPicture(std::string_view text, SourceRange marked, const OutputRules& rules)
{
    const auto page = readSurfacePage(std::string(text), rules);
    const auto lines = pageLines(page);
    const auto [first, end] = markedLines(lines, marked);
    if (first >= end) return false;
    const SourceRange range{lines[first].source.begin, lines[end - 1].source.end};
    return std::ranges::any_of(page.items, [range](const PageItem& item) {
        return item.kind == ItemKind::Picture && item.source.begin >= range.begin
            && item.source.end <= range.end;
    });
}

AlignedText alignLines(
    std::string_view text, SourceRange marked, Alignment alignment, const OutputRules& rules)
{
    requireAddressable(text, rules.maxTextLength());
    const auto page = readSurfacePage(std::string(text), rules);
    const auto splices = LineAlignment(page, marked, alignment).take();
    Rewriter result(page.text);
    for (const auto& splice : splices) {
        result.drop(splice.removed.begin, splice.removed.end);
        result.append(splice.inserted);
    }
    auto changed = result.take();
    requireAddressable(changed, rules.maxTextLength());
    return {std::move(changed), {moved(marked.begin, splices), moved(marked.end, splices)}};
}

std::string CloseOpenParagraphs(
    const SurfacePage& page, std::size_t paragraph, std::size_t offset, std::string_view opening)
{
    auto formats = formatsOpenAt(page, offset);
    const auto begin = paragraph == kNone ? 0 : page.elements[paragraph].start.end;
    std::erase_if(
        formats, [&](std::size_t format) { return page.elements[format].start.begin < begin; });
    const auto border = formatBorder(page, formats);
    return border.ends + std::string(paragraph == kNone ? "" : kParagraphEnd) + std::string(opening)
        + border.starts;
}

} // namespace quillmere
