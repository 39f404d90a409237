#include "skin_tokens.h"

#include "support/contrast.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

using test::contrast;
using test::kShapeContrast;
using test::kTextContrast;

struct Pair {
    std::string what;
    std::uint32_t over;
    std::uint32_t ground;
    double least;
};

void expectContrasts(const std::vector<Pair>& pairs)
{
    for (const auto& pair : pairs)
        EXPECT_GE(contrast(pair.over, pair.ground), pair.least) << pair.what;
}

TEST(SkinTokens, EveryEditorSkinCanBeReadInEveryState)
{
    for (const auto& t : kEditorTokens) {
        SCOPED_TRACE(std::string(t.name));
        for (const auto ground : {t.shell, t.panel, t.well}) {
            const auto hover = mixed(ground, t.ink, kHoverShare);
            expectContrasts({
                {"ink", t.ink, ground, kTextContrast},
                {"muted", t.muted, ground, kTextContrast},
                {"muted under the pointer", t.muted, hover, kTextContrast},
                {"icon under the pointer", t.ink, hover, kShapeContrast},
                {"edge", t.edge, ground, kShapeContrast},
                {"focus ring and pressed tool", t.accent, ground, kShapeContrast},
                {"danger", t.danger, ground, kTextContrast},
            });
        }
        expectContrasts({
            {"on accent", t.onAccent, t.accent, kTextContrast},
            {"on danger", t.onDanger, t.danger, kTextContrast},
            {"page", t.displayInk, t.display, kTextContrast},
            {"link", t.link, t.display, kTextContrast},
            {"chip", t.displayInk, t.chip, kTextContrast},
        });
    }
}

} // namespace
} // namespace quillmere
