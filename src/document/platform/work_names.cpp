// The search begins where the last one ended, since a deck of thousands of cards asks for thousands
// of names. Held by files_test.cpp.

#include "document/platform/work_names.h"

#include "document/text/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>

namespace quillmere {
namespace {

constexpr int kMaxNumber = std::numeric_limits<std::int16_t>::max();

std::optional<int> numberIn(std::string_view name, std::string_view prefix, std::string_view suffix)
{
    if (!name.starts_with(prefix) || !name.ends_with(suffix)) return std::nullopt;
    if (name.size() <= prefix.size() + suffix.size()) return std::nullopt;
    name = name.substr(prefix.size(), name.size() - prefix.size() - suffix.size());
    int number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    if (error != std::errc() || end != name.data() + name.size() || number < 0) return {};
    return number;
}

} // namespace

std::string WorkNames::first(std::string_view prefix, std::string_view suffix,
    const std::function<bool(const std::string&)>& canBeHad)
{
    auto& searched = pattern(prefix, suffix);
    for (; searched.lowest <= kMaxNumber; ++searched.lowest) {
        std::array<char, 8> digits{};
        auto* const end = std::to_chars(digits.begin(), digits.end(), searched.lowest).ptr;
        std::string name(prefix);
        name.append(digits.begin(), end).append(suffix);
        if (canBeHad(name)) return name;
    }
    throw Overflow();
}

void WorkNames::release(std::string_view name)
{
    for (auto& searched : patterns_) {
        const auto number = numberIn(name, searched.prefix, searched.suffix);
        if (number) searched.lowest = std::min(searched.lowest, *number);
    }
}

WorkNames::Pattern& WorkNames::pattern(std::string_view prefix, std::string_view suffix)
{
    const auto found = std::find_if(patterns_.begin(), patterns_.end(),
        [&](const Pattern& known) { return known.suffix == suffix && known.prefix == prefix; });
    if (found != patterns_.end()) return *found;
    return patterns_.emplace_back(Pattern{std::string(prefix), std::string(suffix)});
}

} // namespace quillmere
