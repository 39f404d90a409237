#include "support/token_soup.h"

#include <random>

namespace quillmere::test {
namespace {

void extend(std::string& text, Tokens tokens, std::size_t left,
    const std::function<void(const std::string&)>& callback)
{
    callback(text);
    if (left == 0) return;
    const std::size_t length = text.size();
    for (const std::string_view token : tokens) {
        text.append(token);
        extend(text, tokens, left - 1, callback);
        text.resize(length);
    }
}

} // namespace

void forEachSequence(
    Tokens tokens, std::size_t maxLength, const std::function<void(const std::string&)>& callback)
{
    std::string text;
    extend(text, tokens, maxLength, callback);
}

std::string randomSoup(std::uint32_t seed, Tokens tokens, std::size_t length)
{
    std::mt19937 random(seed); // the distributions of <random> differ between libraries
    std::string text;
    for (std::size_t i = 0; i < length; ++i)
        text.append(tokens[random() % tokens.size()]);
    return text;
}

} // namespace quillmere::test
