#include "forms/form_scaling.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr ScreenTwips k15{15, 15}, k12{12, 12};

/// A form and its only control.
struct Scaled {
    ScaledControl form, control;
};

Scaled scaled(const char* form, double width, double height, const char* control, ScreenTwips twips)
{
    Scaled result{{form, 0, 0, width, height, 10}, {}};
    std::vector<ScaledControl> controls{{control, 1500, 3000, 600, 900, 10}};
    scaleForm(result.form, controls, twips);
    result.control = controls[0];
    return result;
}

TEST(ScaleForm, TwelveTwipsAPixelTakeAFifth)
{
    struct Row {
        const char* name;
        double left, width, font;
    };
    constexpr Row kRows[] = {
        {"btnNew", 1200, 480, 8},
        {"objBrowserCard", 1200, 600, 10},
        {"objTemplateBrowser", 1200, 480, 10},
        {"objPreviewBrowser", 1500, 600, 10},
        {"lblCurAreaCaption", 1500, 600, 10},
        {"lblCardCaption", 1200, 480, 10},
        {"lblTaskCaption", 1200, 480, 10},
        {"objDialog", 1500, 600, 10},
        {"objTempPicture", 1500, 600, 10},
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.name);
        const auto result = scaled("frmArea", 9000, 9000, row.name, k12).control;
        EXPECT_EQ(result.left, row.left);
        EXPECT_EQ(result.width, row.width);
        EXPECT_EQ(result.fontSize, row.font);
    }
}

TEST(ScaleForm, AFormGrowsToHoldItsControls)
{
    EXPECT_EQ(scaled("frmArea", 100, 100, "btnNew", k15).form.width, 2150);
    EXPECT_EQ(scaled("frmArea", 100, 100, "btnNew", k15).form.height, 3900);
    EXPECT_EQ(scaled("frmPreview", 100, 100, "btnNew", k15).form.width, 100);
    EXPECT_EQ(scaled("frmArea", 100, 9000, "picSkin", k15).form.width, 100);
    EXPECT_EQ(scaled("frmUploadExtended", 9000, 100, "btnNew", k12).form.height, 3270);
    EXPECT_EQ(scaled("frmUploadExtended", 9000, 100, "btnNew", k15).form.height, 3900);
    // Across, not down, tells whether fonts are big.
    EXPECT_EQ(scaled("frmUploadExtended", 9000, 100, "btnNew", {12, 15}).form.height, 4050);
    EXPECT_EQ(scaled("frmUploadExtended", 9000, 100, "btnNew", {15, 12}).form.height, 3120);
}

} // namespace
} // namespace quillmere
