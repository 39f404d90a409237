#pragma once

#include <chrono>

namespace quillmere::test {

/// The milliseconds that `work` takes.
template <typename Work> [[nodiscard]] double millisecondsOf(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

} // namespace quillmere::test
