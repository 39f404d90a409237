#pragma once

#include <algorithm>
#include <ctime>
#include <limits>

namespace quillmere::test {

/// The milliseconds of processor time that `work` takes, the least of some runs.
template <typename Work> [[nodiscard]] double millisecondsOf(const Work& work, int runs = 1)
{
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < runs; ++run) {
        const std::clock_t start = std::clock();
        work();
        best = std::min(best, 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

} // namespace quillmere::test
