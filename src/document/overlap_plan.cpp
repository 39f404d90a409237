// A moved end stays the next one of its kind for all beginnings ahead of it, so the ends keep their
// order while their places change, and one pass with three indexes sees what a search from each
// beginning on would see. Held by format_nesting_test.cpp.

#include "document/overlap_plan.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace quillmere {
namespace {

/// A place in the text: rank 0 is the tag at the offset, lower ranks lie ahead of it.
struct Place {
    std::size_t offset;
    int rank = 0;
    auto operator<=>(const Place&) const = default;
};

struct Tag {
    std::size_t source;
    Place place;
    std::size_t begunAt = 0; // of the move, where the rank is below 0
};

/// The tags of one kind, of which one is the next behind the place of the walk.
class TagRow {
public:
    explicit TagRow(std::span<const std::size_t> offsets)
    {
        tags_.reserve(offsets.size());
        for (const std::size_t offset : offsets)
            tags_.push_back({offset, {offset}});
    }

    void goBehind(std::size_t offset)
    {
        while (next_ < tags_.size() && tags_[next_].place <= Place{offset})
            ++next_;
    }
    [[nodiscard]] bool exists() const { return next_ < tags_.size(); }
    [[nodiscard]] Place place() const { return tags_[next_].place; }
    /// Whether the next tag stands ahead of the next one of `other`; neither may be missing.
    [[nodiscard]] bool isAheadOf(const TagRow& other) const
    {
        return exists() && other.exists() && place() < other.place();
    }
    void moveInFrontOf(const TagRow& other, std::size_t begunAt)
    {
        tags_[next_].place = {other.place().offset, other.place().rank - 1};
        tags_[next_].begunAt = begunAt;
    }
    [[nodiscard]] const std::vector<Tag>& tags() const { return tags_; }

private:
    std::vector<Tag> tags_;
    std::size_t next_ = 0;
};

struct RankedMove {
    int rank;
    TagMove move;
};

void collectMoves(const TagRow& row, bool isA, std::vector<RankedMove>& moves)
{
    for (const Tag& tag : row.tags()) {
        if (tag.place.rank == 0) continue;
        moves.push_back({tag.place.rank, {tag.begunAt, tag.source, tag.place.offset, isA}});
    }
}

} // namespace

std::vector<TagMove> planOverlapMoves(const OverlapTags& tags)
{
    TagRow closeA(tags.closeA);
    TagRow openB(tags.openB);
    TagRow closeB(tags.closeB);
    for (const std::size_t begin : tags.openA) {
        closeA.goBehind(begin);
        openB.goBehind(begin);
        closeB.goBehind(begin);
        if (openB.isAheadOf(closeA) && closeA.isAheadOf(closeB))
            closeB.moveInFrontOf(closeA, begin);
        else if (closeB.isAheadOf(closeA) && (!openB.exists() || closeB.isAheadOf(openB)))
            closeA.moveInFrontOf(closeB, begin);
    }
    std::vector<RankedMove> ranked;
    collectMoves(closeA, true, ranked);
    collectMoves(closeB, false, ranked);
    std::sort(ranked.begin(), ranked.end(), [](const RankedMove& left, const RankedMove& right) {
        return std::pair(left.move.target, left.rank) < std::pair(right.move.target, right.rank);
    });
    std::vector<TagMove> moves;
    for (const RankedMove& each : ranked)
        moves.push_back(each.move);
    return moves;
}

} // namespace quillmere
