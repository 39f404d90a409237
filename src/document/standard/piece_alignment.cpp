// Common begins and ends go first. In between the greedy search of Myers (An O(ND) difference
// algorithm, 1986) finds the shortest way as long as it is short; with a longer one the sequences
// are cut at what is unique on both sides. Held by piece_alignment_test.cpp.

#include "document/standard/piece_alignment.h"

#include <algorithm>
#include <unordered_map>

namespace quillmere {

namespace {

using Keys = std::span<const std::uint64_t>;
using Places = std::vector<std::uint32_t>;

constexpr int kLongestWay = 400;

struct Part {
    std::size_t thenBegin;
    std::size_t thenEnd;
    std::size_t nowBegin;
    std::size_t nowEnd;
    [[nodiscard]] bool isEmpty() const { return thenBegin == thenEnd || nowBegin == nowEnd; }
};

class Alignment {
public:
    Alignment(Keys then, Keys now)
        : then_(then)
        , now_(now)
        , places_(now.size(), kNoPiece)
    {
    }
    Places take()
    {
        align({0, then_.size(), 0, now_.size()}, true);
        return std::move(places_);
    }

private:
    void align(Part part, bool mayCut);
    void trim(Part& part);
    [[nodiscard]] bool findShortWay(const Part& part);
    void walkBack(const Part& part, const std::vector<std::vector<int>>& reached);
    void cutAtUnique(const Part& part);
    [[nodiscard]] std::vector<std::uint32_t> uniqueIn(const Part& part) const;
    [[nodiscard]] int slide(const Part& part, int x, int y) const;
    void keep(std::size_t then, std::size_t now)
    {
        places_[now] = static_cast<std::uint32_t>(then);
    }

    Keys then_;
    Keys now_;
    Places places_;
};

void Alignment::align(Part part, bool mayCut)
{
    trim(part);
    if (part.isEmpty() || findShortWay(part)) return;
    if (mayCut) cutAtUnique(part);
}

void Alignment::trim(Part& part)
{
    while (!part.isEmpty() && then_[part.thenBegin] == now_[part.nowBegin])
        keep(part.thenBegin++, part.nowBegin++);
    while (!part.isEmpty() && then_[part.thenEnd - 1] == now_[part.nowEnd - 1])
        keep(--part.thenEnd, --part.nowEnd);
}

/// How far from x, y the two are the same.
int Alignment::slide(const Part& part, int x, int y) const
{
    const auto thenCount = static_cast<int>(part.thenEnd - part.thenBegin);
    const auto nowCount = static_cast<int>(part.nowEnd - part.nowBegin);
    while (x < thenCount && y < nowCount
        && then_[part.thenBegin + static_cast<std::size_t>(x)]
            == now_[part.nowBegin + static_cast<std::size_t>(y)]) {
        ++x;
        ++y;
    }
    return x;
}

/// The furthest `then` that a way of so many steps reaches on diagonal k (then less now).
int furthest(const std::vector<int>& before, int steps, int k)
{
    if (steps == 0) return 0;
    const auto at
        = [&](int diagonal) { return before[static_cast<std::size_t>(diagonal + steps - 1)]; };
    if (k == -steps) return at(k + 1);
    if (k == steps) return at(k - 1) + 1;
    return std::max(at(k + 1), at(k - 1) + 1);
}

bool Alignment::findShortWay(const Part& part)
{
    const auto thenCount = static_cast<int>(part.thenEnd - part.thenBegin);
    const auto nowCount = static_cast<int>(part.nowEnd - part.nowBegin);
    std::vector<std::vector<int>> reached;
    for (int steps = 0; steps <= kLongestWay; ++steps) {
        std::vector<int> next(2 * static_cast<std::size_t>(steps) + 1);
        const std::vector<int> none;
        const auto& before = steps == 0 ? none : reached.back();
        for (int k = -steps; k <= steps; k += 2) {
            const int x = furthest(before, steps, k);
            const int place = k + steps;
            auto& end = next[static_cast<std::size_t>(place)];
            end = x <= thenCount && x - k <= nowCount ? slide(part, x, x - k) : x;
            if (end != thenCount || end - k != nowCount) continue;
            reached.push_back(std::move(next));
            walkBack(part, reached);
            return true;
        }
        reached.push_back(std::move(next));
    }
    return false;
}

/// From the end through the ways that were reached, keeping what is the same on each diagonal.
void Alignment::walkBack(const Part& part, const std::vector<std::vector<int>>& reached)
{
    auto x = static_cast<int>(part.thenEnd - part.thenBegin);
    auto y = static_cast<int>(part.nowEnd - part.nowBegin);
    for (auto steps = static_cast<int>(reached.size()) - 1; steps >= 0; --steps) {
        const std::vector<int> none;
        const auto& before = steps == 0 ? none : reached[static_cast<std::size_t>(steps) - 1];
        const int k = x - y;
        const int begin = furthest(before, steps, k);
        while (x > begin)
            keep(part.thenBegin + static_cast<std::size_t>(--x),
                part.nowBegin + static_cast<std::size_t>(--y));
        if (steps == 0) return;
        const auto at
            = [&](int diagonal) { return before[static_cast<std::size_t>(diagonal + steps - 1)]; };
        const bool isDown = k == -steps || (k != steps && at(k + 1) >= at(k - 1) + 1);
        isDown ? --y : --x;
    }
}

/// For each of the `now` in the part the place of the only same one in `then`, if it is unique on
/// both sides.
std::vector<std::uint32_t> Alignment::uniqueIn(const Part& part) const
{
    struct Seen {
        int then = 0;
        int now = 0;
        std::uint32_t place = kNoPiece;
    };
    std::unordered_map<std::uint64_t, Seen> seen;
    for (auto i = part.thenBegin; i < part.thenEnd; ++i) {
        auto& known = seen[then_[i]];
        ++known.then;
        known.place = static_cast<std::uint32_t>(i);
    }
    for (auto i = part.nowBegin; i < part.nowEnd; ++i)
        ++seen[now_[i]].now;
    std::vector<std::uint32_t> places;
    for (auto i = part.nowBegin; i < part.nowEnd; ++i) {
        const auto& known = seen[now_[i]];
        places.push_back(known.then == 1 && known.now == 1 ? known.place : kNoPiece);
    }
    return places;
}

void Alignment::cutAtUnique(const Part& part)
{
    const auto places = uniqueIn(part);
    auto rest = part;
    for (const auto index : risingPart(places)) {
        const auto now = part.nowBegin + index;
        align({rest.thenBegin, places[index], rest.nowBegin, now}, false);
        keep(places[index], now);
        rest = {places[index] + std::size_t{1}, part.thenEnd, now + 1, part.nowEnd};
    }
    align(rest, false);
}

} // namespace

std::vector<std::uint32_t> inverted(std::span<const std::uint32_t> places, std::size_t count)
{
    std::vector<std::uint32_t> result(count, kNoPiece);
    for (std::uint32_t i = 0; i < places.size(); ++i)
        if (places[i] != kNoPiece) result[places[i]] = i;
    return result;
}

std::vector<std::uint32_t> risingPart(std::span<const std::uint32_t> numbers)
{
    std::vector<std::uint32_t> ends; // of the best parts of each length: their last index
    std::vector<std::uint32_t> ahead(numbers.size(), kNoPiece);
    for (std::uint32_t i = 0; i < numbers.size(); ++i) {
        if (numbers[i] == kNoPiece) continue;
        const auto place = std::ranges::lower_bound(
            ends, numbers[i], {}, [&](std::uint32_t index) { return numbers[index]; });
        if (place != ends.begin()) ahead[i] = *(place - 1);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<std::uint32_t> part;
    for (auto i = ends.empty() ? kNoPiece : ends.back(); i != kNoPiece; i = ahead[i])
        part.push_back(i);
    std::ranges::reverse(part);
    return part;
}

std::vector<std::uint32_t> alignPieces(
    std::span<const std::uint64_t> then, std::span<const std::uint64_t> now)
{
    return Alignment(then, now).take();
}

} // namespace quillmere
