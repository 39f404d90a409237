// Tags that are to be deleted are taken out of rows that still find the nearest tag that is left
// (union-find with path halving), so lists within lists do not look through the same tags again.
// Held by format_around_select_test.cpp.

#include "document/select_format_plan.h"

#include "document/text_search.h"

#include <algorithm>
#include <numeric>

namespace quillmere {
namespace {

/// The tags of one kind that are left.
class RemainingTags {
public:
    explicit RemainingTags(std::span<const std::size_t> places)
        : places_(places)
        , next_(places.size() + 1)
        , previous_(places.size() + 1)
    {
        std::iota(next_.begin(), next_.end(), std::size_t{0});
        std::iota(previous_.begin(), previous_.end(), std::size_t{0});
    }

    [[nodiscard]] std::size_t firstBehind(std::size_t offset)
    {
        const auto place = std::upper_bound(places_.begin(), places_.end(), offset);
        const auto index = follow(next_, indexOf(place));
        return index < places_.size() ? places_[index] : npos;
    }
    [[nodiscard]] std::size_t lastAhead(std::size_t offset)
    {
        const auto place = std::lower_bound(places_.begin(), places_.end(), offset);
        const auto count = follow(previous_, indexOf(place));
        return count > 0 ? places_[count - 1] : npos;
    }
    void take(std::size_t offset)
    {
        if (offset == npos) return;
        const auto index = indexOf(std::lower_bound(places_.begin(), places_.end(), offset));
        next_[index] = index + 1;
        previous_[index + 1] = index;
    }

private:
    using Links = std::vector<std::size_t>;

    [[nodiscard]] std::size_t indexOf(std::span<const std::size_t>::iterator place) const
    {
        return static_cast<std::size_t>(place - places_.begin());
    }
    static std::size_t follow(Links& links, std::size_t index)
    {
        while (links[index] != index) {
            links[index] = links[links[index]];
            index = links[index];
        }
        return index;
    }

    std::span<const std::size_t> places_;
    Links next_; // the index itself where its tag is left, else a later one
    Links previous_; // the same towards the front, by index + 1; 0: none is left
};

class CutPlan {
public:
    CutPlan(std::span<const std::size_t> opens, std::span<const std::size_t> closes)
        : opens_(opens)
        , closes_(closes)
    {
    }

    /// "<b>" in the list goes with the "</b>" behind it, wherever that is; "</b>" in the list with
    /// the "<b>" ahead of the list.
    void takeInside(const SelectList& list)
    {
        for (;;) {
            auto open = opens_.firstBehind(list.begin);
            if (open >= list.end) {
                if (closes_.firstBehind(list.begin) >= list.end) return;
                open = openAhead(list.begin);
            }
            take({list.begin, open, closes_.firstBehind(open == npos ? list.begin : open)});
        }
    }

    void takeAround(const SelectList& list)
    {
        for (;;) {
            const auto open = openAhead(list.begin);
            const auto close = closes_.firstBehind(list.begin);
            if (open == npos || close == npos || close < list.end) return;
            take({list.begin, open, close});
        }
    }

    std::vector<SelectCut> cuts;

private:
    /// The last open tag ahead of the place with no close tag between.
    std::size_t openAhead(std::size_t place)
    {
        const auto open = opens_.lastAhead(place);
        return open != npos && closes_.firstBehind(open) < place ? npos : open;
    }
    void take(const SelectCut& cut)
    {
        opens_.take(cut.open);
        closes_.take(cut.close);
        cuts.push_back(cut);
    }

    RemainingTags opens_;
    RemainingTags closes_;
};

} // namespace

std::vector<SelectList> selectLists(
    std::span<const std::size_t> begins, std::span<const std::size_t> ends)
{
    std::vector<SelectList> lists;
    auto end = ends.begin();
    for (const std::size_t begin : begins) {
        while (end != ends.end() && *end < begin)
            ++end;
        if (end == ends.end()) break;
        lists.push_back({begin, *end});
    }
    return lists;
}

std::vector<SelectCut> planCutsInside(std::span<const SelectList> lists,
    std::span<const std::size_t> opens, std::span<const std::size_t> closes)
{
    if (opens.empty() && closes.empty()) return {};
    CutPlan plan(opens, closes);
    for (const SelectList& list : lists)
        plan.takeInside(list);
    return std::move(plan.cuts);
}

std::vector<SelectCut> planCutsAround(std::span<const SelectList> lists,
    std::span<const std::size_t> opens, std::span<const std::size_t> closes)
{
    if (opens.empty()) return {};
    CutPlan plan(opens, closes);
    for (const SelectList& list : lists)
        plan.takeAround(list);
    return std::move(plan.cuts);
}

} // namespace quillmere
