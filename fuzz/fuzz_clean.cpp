// Any bytes as what a surface may leave: cleaned without a hang, to 7 bits, with the card's end
// last.

#include "fuzz_target.h"

#include "document/repair/clean_design_html.h"
#include "document/text/failure.h"

#include <algorithm>
#include <string>

using namespace quillmere;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    std::string text(data + 1, data + size);
    try {
        CleanDesignHtml(text, OutputRules((data[0] & 1U) != 0));
    } catch (const RuntimeFailure&) {
        return 0; // too long, or options without any end
    }
    fuzz::require(std::all_of(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 127; }));
    return 0;
}
