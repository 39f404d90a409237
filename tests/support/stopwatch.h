#pragma once

#include <algorithm>
#include <chrono>

namespace quillmere::test {

/// The milliseconds that `work` takes, the least of some runs.
template <typename Work> [[nodiscard]] double millisecondsOf(const Work& work, int runs = 1)
{
    using Milliseconds = std::chrono::duration<double, std::milli>;
    auto best = Milliseconds::max();
    for (int run = 0; run < runs; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        best = std::min<Milliseconds>(best, std::chrono::steady_clock::now() - start);
    }
    return best.count();
}

} // namespace quillmere::test
