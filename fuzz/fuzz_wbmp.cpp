// Any bytes as a WBMP file, by both sets of rules: what is read has its size within the limit and
// draws, and a header alone reads like the whole file.

#include "fuzz_target.h"

#include "document/text/failure.h"
#include "imageconv/wbmp.h"
#include "imageconv/wbmp_display_copies.h"

#include <string_view>

using namespace quillmere;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const std::string bytes(data + 1, data + size);
    const OutputRules rules((data[0] & 1U) != 0);
    try {
        const WbmpPicture picture = readWbmp(bytes, rules);
        fuzz::require(picture.size.widthPx >= 0 && picture.size.widthPx <= kMaxPictureSidePx);
        fuzz::require(picture.size.heightPx >= 0 && picture.size.heightPx <= kMaxPictureSidePx);
        const auto rows = static_cast<std::size_t>(picture.size.heightPx);
        fuzz::require(picture.rows.size() == picture.rowBytes() * rows);
        constexpr std::size_t kDrawnBytes = 1U << 16U; // larger ones take long and show nothing new
        if (picture.rows.size() <= kDrawnBytes)
            fuzz::require(drawPicture(picture, 2391815).starts_with("BM"));
    } catch (const BadPicture&) {
        // refused
    }
    return 0;
}
