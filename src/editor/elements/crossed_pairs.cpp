// Held by text_formats_test.cpp.

#include "editor/elements/crossed_pairs.h"

#include "document/text/text_search.h"

#include <array>

namespace quillmere {

namespace {

struct TestedPair {
    CrossedPair pair;
    std::string_view start;
    std::string_view end;
};

constexpr std::array kTestedPairs{TestedPair{CrossedPair::Select, "<!--select", "<!--/select"},
    TestedPair{CrossedPair::Option, "<!--option", "<!--/option"},
    TestedPair{CrossedPair::Table, "<table", "</table"}};

/// The begin of the element around an offset; npos where there is none.
std::size_t elementAround(std::string_view text, const TestedPair& pair, std::size_t offset)
{
    const auto begin = findLastIgnoringCase(text, pair.start, offset);
    const auto end = begin == npos ? npos : findIgnoringCase(text, pair.end, begin);
    return end == npos || end < offset ? npos : begin;
}

} // namespace

std::optional<CrossedPair> crossedPair(std::string_view text, SourceRange marked)
{
    for (const auto& pair : kTestedPairs)
        if (elementAround(text, pair, marked.begin) != elementAround(text, pair, marked.end))
            return pair.pair;
    return std::nullopt;
}

} // namespace quillmere
