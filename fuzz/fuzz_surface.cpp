// Any bytes as the text of an area: read into a page whose places are exact, and edited by random
// operations, after each of which all that is promised of edits holds. The first two bytes are the
// seed of the operations, the third their number; an odd one reads by the rules that lose nothing.

#include "fuzz_target.h"

#include "document/text/failure.h"
#include "editor/page/page_places.h"
#include "support/edit_checks.h"

#include <cstdio>
#include <string>

using namespace quillmere;

namespace {

constexpr std::size_t kOptions = 3;
constexpr std::size_t kMaxOperations = 8;

void requireExactPlaces(const SurfacePage& page)
{
    std::size_t free = page.content.begin;
    for (std::size_t block = 0; block < page.blocks.size(); ++block)
        for (std::size_t offset = 0; offset <= itemCount(page.blocks[block]); ++offset) {
            const PagePlace place{block, offset};
            const auto told = offsetAt(page, place);
            fuzz::require(told >= free && told <= page.content.end);
            fuzz::require(placeAt(page, told) == place);
            free = told + 1;
        }
}

void requireSoundEdits(
    std::string text, std::uint64_t seed, std::size_t count, const OutputRules& rules)
{
    test::SmallRandom random(seed);
    for (; count > 0; --count) {
        const auto page = readSurfacePage(text, rules);
        fuzz::require(page.text == text);
        const auto tried = test::randomEdit(random, page);
        const auto fault = test::faultOf(page, tried);
        if (!fault.empty()) (void)std::fprintf(stderr, "%s\n", fault.c_str());
        fuzz::require(fault.empty());
        text = edited(text, tried.on(page), rules);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < kOptions) return 0;
    const std::string text(data + kOptions, data + size);
    const OutputRules rules(data[2] % 2 != 0);
    requireExactPlaces(readSurfacePage(text, rules));
    try {
        requireSoundEdits(
            text, data[0] * std::uint64_t{256} + data[1], data[2] % kMaxOperations, rules);
    } catch (const Overflow&) {
        return 0; // refused, and nothing is lost
    }
    return 0;
}
