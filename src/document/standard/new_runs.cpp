// A run goes back piece by piece as long as the piece ahead of it is the same as its last one. Held
// by piece_alignment_test.cpp.

#include "document/standard/new_runs.h"

#include "document/standard/piece_alignment.h"

namespace quillmere {

namespace {

using Keys = std::span<const std::uint64_t>;
using Places = std::vector<std::uint32_t>;

/// A run of new pieces and how far it may go back, being the same run there.
struct Run {
    std::size_t begin;
    std::size_t end;
    [[nodiscard]] bool mayGoBack(Keys keys, const Places& places, std::size_t steps) const
    {
        return begin > steps && places[begin - 1 - steps] != kNoPiece
            && keys[begin - 1 - steps] == keys[end - 1 - steps];
    }
};

void moveBack(const Run& run, std::size_t steps, Places& places)
{
    for (std::size_t i = 1; i <= steps; ++i) {
        places[run.end - i] = places[run.begin - i];
        places[run.begin - i] = kNoPiece;
    }
}

/// Moves the run back to where it begins with a start and ends with an end, if there is such a
/// place.
void settle(const Run& run, Keys keys, std::span<const PieceTurn> turns, Places& places)
{
    for (std::size_t steps = 0;; ++steps) {
        const bool isWhole = turns[run.begin - steps] == PieceTurn::Opens
            && turns[run.end - 1 - steps] == PieceTurn::Closes;
        if (isWhole) return moveBack(run, steps, places);
        if (!run.mayGoBack(keys, places, steps)) return;
    }
}

} // namespace

void settleRuns(Keys keys, std::span<const PieceTurn> turns, Places& places)
{
    for (std::size_t begin = 0; begin < places.size();) {
        auto end = begin;
        while (end < places.size() && places[end] == kNoPiece)
            ++end;
        if (end > begin) settle({begin, end}, keys, turns, places);
        begin = end + 1;
    }
}

} // namespace quillmere
