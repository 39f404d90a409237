#pragma once

#include "support/small_random.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>

// Texts put together from tokens such as "<p>" or "</b", on which a fast operation is held against
// a slow one. `Tokens` converts from an array, a vector or a span of string_views.

namespace quillmere::test {

using Tokens = std::span<const std::string_view>;

/// Calls `callback` with every sequence of 0 to `maxLength` of the tokens, written without anything
/// between them: 1 + n + n^2 + ... texts for n tokens. With single characters as tokens these are
/// all texts over an alphabet. `ahead` stands in front of each.
inline void forEachSequence(Tokens tokens, std::size_t maxLength,
    const std::function<void(const std::string&)>& callback, const std::string& ahead = {})
{
    callback(ahead);
    if (maxLength == 0) return;
    for (const std::string_view token : tokens)
        forEachSequence(tokens, maxLength - 1, callback, std::string(ahead).append(token));
}

/// `length` tokens drawn at random, the same on every machine for the same seed.
[[nodiscard]] inline std::string randomSoup(std::uint64_t seed, Tokens tokens, std::size_t length)
{
    SmallRandom random(seed);
    std::string text;
    for (std::size_t i = 0; i < length; ++i)
        text.append(tokens[random.below(tokens.size())]);
    return text;
}

} // namespace quillmere::test
