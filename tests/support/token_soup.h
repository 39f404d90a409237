#pragma once

#include <cstddef>
#include <cstdint>
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
/// all texts over an alphabet. The text is valid during the call only.
void forEachSequence(
    Tokens tokens, std::size_t maxLength, const std::function<void(const std::string&)>& callback);

/// `length` tokens drawn at random, the same on every machine for the same seed.
[[nodiscard]] std::string randomSoup(std::uint32_t seed, Tokens tokens, std::size_t length);

} // namespace quillmere::test
