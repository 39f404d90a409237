// A moved end stays the next one of its kind for all beginnings ahead of it, so the ends keep their
// order while their places change, and one pass with three indexes sees what a search from each
// beginning on would see. Held by corrections_test.cpp.

#include "document/repair/overlap_plan.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillmere {
namespace {

/// A place in the text: rank 0 is the tag at the offset, lower ranks lie ahead of it.
struct Place {
    TagOffset offset;
    std::int8_t rank = 0;
    bool operator<(const Place& other) const
    {
        return std::pair(offset, rank) < std::pair(other.offset, other.rank);
    }
};

struct Tag {
    TagOffset source;
    Place place;
    TagOffset begunAt = 0; // of the move, where the rank is below 0
};

/// The tags of one kind, of which one is the next behind the place of the walk.
class TagRow {
public:
    explicit TagRow(std::span<const TagOffset> offsets)
    {
        tags_.reserve(offsets.size());
        for (const TagOffset offset : offsets)
            tags_.push_back({offset, {offset}});
    }

    void goBehind(TagOffset offset)
    {
        while (next_ < tags_.size() && !(Place{offset} < tags_[next_].place))
            ++next_;
    }
    [[nodiscard]] bool exists() const { return next_ < tags_.size(); }
    [[nodiscard]] Place place() const { return tags_[next_].place; }
    /// Whether the next tag stands ahead of the next one of `other`; false where one is missing.
    [[nodiscard]] bool isAheadOf(const TagRow& other) const
    {
        return exists() && other.exists() && place() < other.place();
    }
    void moveInFrontOf(const TagRow& other, TagOffset begunAt)
    {
        const Place target = other.place();
        tags_[next_].place = {target.offset, static_cast<std::int8_t>(target.rank - 1)};
        tags_[next_].begunAt = begunAt;
    }
    /// What was moved, by place.
    [[nodiscard]] std::vector<TagMove> moves(bool isA) const
    {
        std::vector<TagMove> moves;
        for (const auto& [source, place, begunAt] : tags_) {
            if (place.rank < 0) moves.push_back({begunAt, source, place.offset, place.rank, isA});
        }
        return moves;
    }

private:
    std::vector<Tag> tags_;
    std::size_t next_ = 0;
};

} // namespace

std::vector<TagMove> planOverlapMoves(const OverlapTags& tags)
{
    TagRow closeA(tags.closeA);
    TagRow openB(tags.openB);
    TagRow closeB(tags.closeB);
    for (const TagOffset begin : tags.openA) {
        closeA.goBehind(begin);
        openB.goBehind(begin);
        closeB.goBehind(begin);
        if (openB.isAheadOf(closeA) && closeA.isAheadOf(closeB))
            closeB.moveInFrontOf(closeA, begin);
        else if (closeB.isAheadOf(closeA) && (!openB.exists() || closeB.isAheadOf(openB)))
            closeA.moveInFrontOf(closeB, begin);
    }
    const auto movesA = closeA.moves(true);
    const auto movesB = closeB.moves(false);
    std::vector<TagMove> moves;
    std::merge(movesA.begin(), movesA.end(), movesB.begin(), movesB.end(),
        std::back_inserter(moves), [](const TagMove& left, const TagMove& right) {
            return std::pair(left.target, left.rank) < std::pair(right.target, right.rank);
        });
    return moves;
}

} // namespace quillmere
