// E. W. Myers, "An O(ND) Difference Algorithm and Its Variations" (1986), the greedy method, run
// in windows: after kMaxEdits edits without an end the path that came furthest is taken as found
// and the next window begins where it stands. Values that the other side has not are left out
// ahead of it, since they only cost edits. Held by deck_changes_test.cpp.

#include "document/changes/sequence_match.h"

#include <algorithm>
#include <unordered_set>

namespace quillmere {

namespace {

constexpr int kMaxEdits = 200;

/// A sequence without the values that the other one lacks, and where the others come from.
struct Shared {
    std::vector<int> values;
    std::vector<std::size_t> positions;
};

Shared sharedPart(std::span<const int> sequence, std::span<const int> other)
{
    const std::unordered_set<int> known(other.begin(), other.end());
    Shared shared;
    for (std::size_t i = 0; i < sequence.size(); ++i) {
        if (!known.contains(sequence[i])) continue;
        shared.values.push_back(sequence[i]);
        shared.positions.push_back(i);
    }
    return shared;
}

/// The furthest paths by number of edits d and diagonal k = x - y, in one row for each d.
class Window {
public:
    Window(std::span<const int> left, std::span<const int> right)
        : left_(left)
        , right_(right)
        , width_(static_cast<int>(left.size()))
        , height_(static_cast<int>(right.size()))
    {
    }

    /// Appends the pairs of the best path, in order, and returns where it ends.
    MatchedPair run(std::vector<MatchedPair>& pairs)
    {
        for (int d = 0; d <= kMaxEdits; ++d) {
            reach_.resize(static_cast<std::size_t>(d + 1) * static_cast<std::size_t>(d + 1));
            for (int k = -d; k <= d; k += 2) {
                const int x = slide(stepTo(d, k), k);
                reach(d, k) = x;
                if (x >= width_ && x - k >= height_) return take(d, k, pairs);
            }
        }
        return take(kMaxEdits, furthest(), pairs);
    }

private:
    int& reach(int d, int k)
    {
        const int at = d * d + d + k;
        return reach_[static_cast<std::size_t>(at)];
    }

    bool comesDown(int d, int k)
    {
        return k == -d || (k != d && reach(d - 1, k - 1) < reach(d - 1, k + 1));
    }

    int stepTo(int d, int k)
    {
        if (d == 0) return 0;
        return comesDown(d, k) ? reach(d - 1, k + 1) : reach(d - 1, k - 1) + 1;
    }

    [[nodiscard]] int slide(int x, int k) const
    {
        while (x < width_ && x - k < height_
            && left_[static_cast<std::size_t>(x)] == right_[static_cast<std::size_t>(x - k)])
            ++x;
        return x;
    }

    int furthest()
    {
        int best = 0;
        int bestSum = -1;
        for (int k = -kMaxEdits; k <= kMaxEdits; k += 2) {
            const int x = reach(kMaxEdits, k);
            const bool inside = x <= width_ && x - k <= height_;
            if (!inside || 2 * x - k <= bestSum) continue;
            best = k;
            bestSum = 2 * x - k;
        }
        return best;
    }

    MatchedPair take(int d, int k, std::vector<MatchedPair>& pairs)
    {
        const auto begin = static_cast<std::ptrdiff_t>(pairs.size());
        const int endX = reach(d, k);
        const MatchedPair end{static_cast<std::size_t>(endX), static_cast<std::size_t>(endX - k)};
        for (; d >= 0; --d) { // back from the end; a row's slide ends where its step began
            const int from = stepTo(d, k);
            for (int x = reach(d, k); x-- > from;)
                pairs.push_back({static_cast<std::size_t>(x), static_cast<std::size_t>(x - k)});
            if (d > 0) k += comesDown(d, k) ? 1 : -1;
        }
        std::reverse(pairs.begin() + begin, pairs.end());
        return end;
    }

    std::span<const int> left_;
    std::span<const int> right_;
    int width_;
    int height_;
    std::vector<int> reach_;
};

} // namespace

std::vector<MatchedPair> matchSequences(std::span<const int> left, std::span<const int> right)
{
    const Shared a = sharedPart(left, right);
    const Shared b = sharedPart(right, left);
    std::vector<MatchedPair> pairs;
    MatchedPair at;
    while (at.left < a.values.size() && at.right < b.values.size()) {
        const auto found = pairs.size();
        const auto end
            = Window(std::span(a.values).subspan(at.left), std::span(b.values).subspan(at.right))
                  .run(pairs);
        for (auto i = found; i < pairs.size(); ++i)
            pairs[i]
                = {a.positions[pairs[i].left + at.left], b.positions[pairs[i].right + at.right]};
        at = {at.left + end.left, at.right + end.right};
    }
    return pairs;
}

} // namespace quillmere
