// Tags that are to be deleted are taken out of rows that still find the nearest tag that is left
// (union-find with path halving), so lists within lists do not look through the same tags again.
// Held by corrections_test.cpp.

#include "document/select_format_plan.h"

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

using Tags = std::span<const FoundTag>;

/// Those tags of one key that are left, by their index among all tags.
class RemainingTags {
public:
    RemainingTags(Tags tags, std::size_t key)
        : next_(tags.size() + 1, static_cast<std::uint16_t>(tags.size()))
        , previous_(tags.size() + 1, 0)
    {
        for (std::size_t i = 0; i < tags.size(); ++i)
            previous_[i + 1]
                = tags[i].key == key ? static_cast<std::uint16_t>(i + 1) : previous_[i];
        for (std::size_t i = tags.size(); i-- > 0;)
            next_[i] = tags[i].key == key ? static_cast<std::uint16_t>(i) : next_[i + 1];
    }

    /// What stands for a tag that is missing lies behind all tags.
    [[nodiscard]] std::size_t none() const { return next_.size() - 1; }
    [[nodiscard]] std::size_t firstFrom(std::size_t index) { return follow(next_, index); }
    [[nodiscard]] std::size_t lastAhead(std::size_t index)
    {
        const auto behind = follow(previous_, index);
        return behind == 0 ? none() : behind - 1;
    }
    void take(std::size_t index)
    {
        if (index == none()) return;
        next_[index] = static_cast<std::uint16_t>(index + 1);
        previous_[index + 1] = static_cast<std::uint16_t>(index);
    }

private:
    using Links = std::vector<std::uint16_t>;

    static std::size_t follow(Links& links, std::size_t index)
    {
        while (links[index] != index) {
            links[index] = links[links[index]];
            index = links[index];
        }
        return index;
    }

    Links next_; // the index itself where its tag is left, else a later one
    Links previous_; // the same towards the front, by the index behind the tag; 0: none is left
};

struct List {
    std::uint16_t begin; // both by index
    std::uint16_t end;
};

class CutPlan {
public:
    CutPlan(Tags tags, std::size_t openKey)
        : tags_(tags)
        , opens_(tags, openKey)
        , closes_(tags, openKey + 1)
    {
    }

    /// "<b>" in the list goes with the "</b>" behind it, wherever that is; "</b>" in the list with
    /// the "<b>" ahead of the list.
    void takeInside(const List& list)
    {
        for (;;) {
            auto open = opens_.firstFrom(list.begin);
            if (open >= list.end) {
                if (closes_.firstFrom(list.begin) >= list.end) return;
                open = openAhead(list.begin);
            }
            take(list, open, closes_.firstFrom(open == opens_.none() ? list.begin : open));
        }
    }

    void takeAround(const List& list)
    {
        for (;;) {
            const auto open = openAhead(list.begin);
            const auto close = closes_.firstFrom(list.begin);
            if (open == opens_.none() || close == closes_.none() || close < list.end) return;
            take(list, open, close);
        }
    }

    std::vector<SelectCut> cuts;

private:
    /// The last open tag ahead of the place with no close tag between.
    std::size_t openAhead(std::size_t place)
    {
        const auto open = opens_.lastAhead(place);
        return open != opens_.none() && closes_.firstFrom(open) < place ? opens_.none() : open;
    }
    void take(const List& list, std::size_t open, std::size_t close)
    {
        opens_.take(open);
        closes_.take(close);
        cuts.push_back({offsetOf(list.begin), offsetOf(open), offsetOf(close)});
    }
    [[nodiscard]] TagOffset offsetOf(std::size_t index) const
    {
        return index == tags_.size() ? kNoTag : tags_[index].offset;
    }

    Tags tags_;
    RemainingTags opens_;
    RemainingTags closes_;
};

std::vector<List> selectLists(Tags tags, std::size_t from)
{
    std::vector<List> lists;
    auto end = tags.size();
    for (std::size_t i = tags.size(); i-- > 0 && tags[i].offset >= from;) {
        if (tags[i].key == 1) end = i;
        if (tags[i].key == 0 && end != tags.size())
            lists.push_back({static_cast<std::uint16_t>(i), static_cast<std::uint16_t>(end)});
    }
    std::reverse(lists.begin(), lists.end());
    return lists;
}

std::vector<SelectCut> plan(
    Tags tags, std::size_t openKey, std::size_t from, void (CutPlan::*take)(const List&))
{
    const bool concerned = std::any_of(tags.begin(), tags.end(),
        [openKey](const FoundTag& tag) { return tag.key == openKey || tag.key == openKey + 1; });
    if (!concerned) return {};
    CutPlan plan(tags, openKey);
    for (const List& list : selectLists(tags, from))
        (plan.*take)(list);
    return std::move(plan.cuts);
}

} // namespace

bool touchesLists(Tags tags, std::size_t openKey)
{
    bool inFormat = false;
    bool inList = false;
    for (const FoundTag& tag : tags) {
        const bool opens = tag.key == openKey;
        if (opens || tag.key == openKey + 1) {
            if (inList) return true;
            inFormat = opens;
        } else if (tag.key < std::size(kSelectKeys)) {
            inList = tag.key == 0;
            if (inList && inFormat) return true;
        }
    }
    return false;
}

std::vector<SelectCut> planCutsInside(Tags tags, std::size_t openKey, std::size_t from)
{
    return plan(tags, openKey, from, &CutPlan::takeInside);
}

std::vector<SelectCut> planCutsAround(Tags tags, std::size_t openKey, std::size_t from)
{
    return plan(tags, openKey, from, &CutPlan::takeAround);
}

} // namespace quillmere
