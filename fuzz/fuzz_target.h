#pragma once

#include <cstddef>
#include <cstdint>

/// What libFuzzer calls with each input; always returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quillmere::fuzz {

/// A property that every result has; a broken one ends the run like any other fault.
inline void require(bool holds)
{
    if (!holds) __builtin_trap();
}

} // namespace quillmere::fuzz
