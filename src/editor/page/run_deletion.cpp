// All that stands between the two places goes but for the tags that stay, which keep their order;
// tags that go and lie elsewhere are taken out where they are. Held by delete_edits_test.cpp.

#include "editor/page/run_deletion.h"

#include "editor/page/fitting_markup.h"
#include "editor/page/going_tags.h"
#include "editor/page/markup_tags.h"
#include "editor/page/page_places.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

using Kind = PageElement::Kind;

/// Whether the start and the end tag of an element go.
struct Fate {
    bool start = false;
    bool end = false;
};

class Deletion {
public:
    Deletion(const SurfacePage& page, const CoveredRun& run, FirstFormats formats)
        : page_(page)
        , run_(withWholeOptions(page, run))
        , going_(goingElements(page, run_))
        , between_(withGoingMarkers(page, run_, going_, offsetsOf(page, run_)))
    {
        if (formats == FirstFormats::Stay) keepFirstFormats();
        for (const bool goes : going_)
            fates_.push_back({goes, goes});
    }

    RunDeletion take()
    {
        RunDeletion result{{}, run_, goingItemsOutside(page_, run_, going_), between_,
            between_.begin, {}, firstPlaceOfText()};
        if (joinsParagraphs()) result.pasteAt = result.typeAt = between_.end;
        result.round = elementsRound(page_, result.pasteAt);
        std::erase_if(result.round, [this](auto element) { return fates_[element].start; });
        takeTags();
        takeBetween();
        result.splices = std::move(splices_);
        return result;
    }

private:
    [[nodiscard]] const PageBlock& firstBlock() const { return page_.blocks[run_.from.block]; }
    [[nodiscard]] const PageBlock& lastBlock() const { return page_.blocks[run_.to.block]; }

    void keepFirstFormats()
    {
        if (run_.firstItem >= std::min(run_.endItem, firstBlock().endItem)) return;
        for (std::size_t i = 0; i < going_.size(); ++i) {
            const auto& element = page_.elements[i];
            if (element.kind != Kind::Format) continue;
            const auto items = itemsOf(page_, element);
            if (items.first <= run_.firstItem && run_.firstItem < items.end) going_[i] = false;
        }
    }

    [[nodiscard]] std::size_t firstPlaceOfText() const
    {
        const bool hasItem = run_.firstItem < std::min(run_.endItem, firstBlock().endItem);
        return hasItem ? page_.items[run_.firstItem].source.begin : between_.begin;
    }

    /// Makes one paragraph of the first and the last block's, unless one of them is no place for
    /// text. True where text goes into the last one: where it is the paragraph of both, since there
    /// is nothing left of a first block without paragraph, or where the first is no place for text.
    bool joinsParagraphs()
    {
        const auto first = firstBlock().paragraph;
        const auto last = lastBlock().paragraph;
        if (run_.from.block == run_.to.block || first == last) return false;
        if (first == kNone && run_.from.offset == 0) return true;
        if (firstBlock().isAside || lastBlock().isAside) return firstBlock().isAside;
        if (page_.rules.losesNothing() && holderOf(firstBlock()) != holderOf(lastBlock()))
            return false;
        const bool goesOn = first != kNone && last != kNone && haveEqualEnds(first, last);
        if (first != kNone) fates_[first].end = true;
        if (last != kNone) openLastParagraph(last, goesOn);
        if (first != kNone && !goesOn && !page_.elements[first].end.empty())
            splices_.insert(
                lastBlock().content.end, std::string(page_.elements[first].end.in(page_.text)));
        return false;
    }

    /// The innermost element that a block's paragraph stands in; kNone for none.
    [[nodiscard]] std::size_t holderOf(const PageBlock& block) const
    {
        const auto place = block.paragraph == kNone ? block.content.begin
                                                    : page_.elements[block.paragraph].start.begin;
        auto holder = kNone;
        for (std::size_t i = 0; i < page_.elements.size(); ++i) {
            const auto& element = page_.elements[i];
            const bool holds = element.start.end <= place && element.end.begin >= place;
            if (holds && element.kind != Kind::Format) holder = i;
        }
        return holder;
    }

    /// A <p> and a pre marker have not.
    [[nodiscard]] bool haveEqualEnds(std::size_t first, std::size_t last) const
    {
        const auto isMarker = [this](std::size_t paragraph) {
            return page_.elements[paragraph].start.in(page_.text).starts_with("<!");
        };
        return isMarker(first) == isMarker(last);
    }

    /// The last block goes on in the first one's paragraph, or in none. What its own paragraph
    /// has behind a table stays in it where it can not stay in the first one's.
    void openLastParagraph(std::size_t paragraph, bool goesOn)
    {
        fates_[paragraph].start = true;
        if (goesOn) return;
        const auto behind = std::find_if(page_.blocks.begin() + signedIndex(run_.to.block) + 1,
            page_.blocks.end(),
            [paragraph](const PageBlock& block) { return block.paragraph == paragraph; });
        if (behind == page_.blocks.end())
            fates_[paragraph].end = true;
        else
            splices_.insert(
                behind->content.begin, std::string(page_.elements[paragraph].start.in(page_.text)));
    }

    [[nodiscard]] static std::ptrdiff_t signedIndex(std::size_t index)
    {
        return static_cast<std::ptrdiff_t>(index);
    }

    void takeTags()
    {
        for (std::size_t i = 0; i < fates_.size(); ++i) {
            takeTag(page_.elements[i].start, fates_[i].start);
            takeTag(page_.elements[i].end, fates_[i].end);
        }
    }

    void takeTag(SourceRange tag, bool goes)
    {
        if (tag.empty()) return;
        if (goes)
            splices_.remove(tag);
        else if (lies(tag, between_))
            staying_.push_back(tag);
    }

    void takeBetween()
    {
        keepComments();
        std::ranges::sort(staying_, {}, &SourceRange::begin);
        std::size_t done = between_.begin;
        for (const auto tag : staying_) {
            if (tag.begin > done) splices_.remove({done, tag.begin});
            done = std::max(done, tag.end);
        }
        if (between_.end > done) splices_.remove({done, between_.end});
    }

    /// A comment or single marker, which belongs to no element and is no item.
    void keepComments()
    {
        MarkupScanner tags(std::string_view(page_.text).substr(0, between_.end), between_.begin);
        while (const auto tag = tags.next())
            if (isComment(tag->name) && itemOf(page_, tag->source) == kNone
                && !belongsToElement(tag->source) && !goesWithItsNeighbours(tag->source))
                staying_.push_back(tag->source);
    }

    [[nodiscard]] bool belongsToElement(SourceRange tag) const
    {
        return std::ranges::any_of(page_.elements, [tag](const PageElement& element) {
            return element.start == tag || element.end == tag;
        });
    }

    [[nodiscard]] bool goesWithItsNeighbours(SourceRange comment) const
    {
        for (std::size_t i = 0; i < going_.size(); ++i) {
            const auto& element = page_.elements[i];
            if (going_[i] && element.kind != Kind::Format && element.kind != Kind::Link
                && lies(comment, element.whole()) && !losesItsMarker(page_, run_, element))
                return true;
        }
        const auto behind = std::ranges::lower_bound(
            page_.items, comment.begin, {}, [](const PageItem& item) { return item.source.begin; });
        const auto index = static_cast<std::size_t>(behind - page_.items.begin());
        if (index <= run_.firstItem || index >= run_.endItem) return false;
        const auto parent = parentOf(page_, going_, comment.begin);
        return (parent == kNone || page_.elements[parent].kind != Kind::Marker)
            && parent == parentOf(page_, going_, page_.items[index - 1].source.begin)
            && parent == parentOf(page_, going_, page_.items[index].source.begin);
    }

    const SurfacePage& page_;
    CoveredRun run_;
    std::vector<bool> going_;
    SourceRange between_;
    std::vector<Fate> fates_;
    std::vector<SourceRange> staying_;
    SpliceList splices_;
};

} // namespace

RunDeletion deletionOf(const SurfacePage& page, const CoveredRun& run, FirstFormats formats)
{
    if (run.from != run.to) return Deletion(page, run, formats).take();
    const auto place = offsetAt(page, run.from);
    return {{}, run, {}, {place, place}, place, elementsRound(page, place), place};
}

} // namespace quillmere
