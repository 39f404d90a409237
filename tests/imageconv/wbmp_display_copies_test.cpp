#include "imageconv/wbmp_display_copies.h"

#include "imageconv/bmp_writer.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillmere {
namespace {

constexpr std::int32_t kGround = 2391815;

/// Paints a picture of one row, a pixel for each character.
class TextLog final : public AlternativeTextPainter {
public:
    [[nodiscard]] TextCoverage paint(std::string_view text) override
    {
        texts.emplace_back(text);
        return {std::int32_t(text.size()), 1, std::string(text.size(), '\xFF')};
    }
    std::vector<std::string> texts;
};

class DisplayCopyDrawing : public testing::Test {
protected:
    [[nodiscard]] DisplayCopy draw(const std::string& name, std::string_view text = "x",
        std::int32_t ground = kGround, bool standard = false)
    {
        return WbmpDisplayCopies(OutputRules(standard), painter)
            .draw(folder.path() + name, text, ground);
    }
    test::ScratchFolder folder;
    TextLog painter;
};

TEST_F(DisplayCopyDrawing, ShowsClearBitsInDarkRedOnTheGround)
{
    folder.put("a.wbmp", {"\0\0\x04\x02\xF0\xAA", 6});
    const auto copy = draw("a.wbmp");
    EXPECT_EQ(copy.widthPx, 4);
    EXPECT_EQ(copy.heightPx, 2);
    EXPECT_EQ(copy.imageColour, kGround); // the palette's nearest, here the ground itself
    EXPECT_EQ(copy.bmp, bmpBytes({4, 2, 1, {0x40, kGround}, "\xF0\xAA"}));
    EXPECT_TRUE(painter.texts.empty());
}

TEST_F(DisplayCopyDrawing, APictureWithoutPixelsIsOnePixelOfGround)
{
    folder.put("leer.wbmp", "");
    const auto copy = draw("leer.wbmp");
    EXPECT_EQ(copy.widthPx, 0);
    EXPECT_EQ(copy.heightPx, 0);
    EXPECT_EQ(copy.bmp, bmpBytes({1, 1, 1, {kGround, kGround}, std::string(1, '\0')}));
}

TEST_F(DisplayCopyDrawing, WhatCannotBeReadShowsTheBeginningOfItsText)
{
    folder.put("gross.wbmp", {"\0\0\xFF\x7F\xFF\x7F", 6});
    folder.put("typ1.wbmp", {"\x01\0\x04\x02\xF0\xAA", 6});
    EXPECT_EQ(draw("fehlt.wbmp", "Sehr langer Text hier").heightPx, 0);
    EXPECT_EQ(draw("gross.wbmp", "zwölf Zeich").widthPx, 0); // 12 bytes
    EXPECT_EQ(draw("typ1.wbmp", "", kGround, true).widthPx, 0);
    EXPECT_EQ(painter.texts, (std::vector<std::string>{"Sehr langer ...", "zwölf Zeich", " "}));
    EXPECT_EQ(draw("typ1.wbmp").widthPx, 4);
}

TEST_F(DisplayCopyDrawing, TextCanBeReadOnAnyGround)
{
    const auto textColour = [this](std::int32_t ground) { // the last colour of the palette
        return draw("fehlt.wbmp", "x", ground).bmp.substr(54 + 255 * 4, 3);
    };
    EXPECT_EQ(textColour(kGround), std::string("\0\0\x40", 3));
    EXPECT_EQ(textColour(0xFFFFFF), std::string("\0\0\x40", 3));
    EXPECT_EQ(textColour(0x000000), "\xFF\xFF\xFF");
    EXPECT_EQ(textColour(0x000040), "\xFF\xFF\xFF");
    EXPECT_EQ(draw("fehlt.wbmp").bmp.substr(54, 3), "\x24\x7F\x07")
        << "the first one is the ground";
}

TEST_F(DisplayCopyDrawing, SizesAloneAgreeWithWhatIsDrawn)
{
    folder.put("a.wbmp", {"\0\0\x04\x02\xF0\xAA", 6});
    folder.put("b.wbmp", {"\0\0\x81\x00\x01\x02", 6});
    folder.put("kurz.wbmp", "");
    folder.put("gross.wbmp", {"\0\0\xFF\x7F\xFF\x7F", 6});
    WbmpSizes sizes{OutputRules()};
    for (const char* name : {"a.wbmp", "b.wbmp", "kurz.wbmp", "gross.wbmp", "fehlt.wbmp"}) {
        SCOPED_TRACE(name);
        const auto drawn = draw(name);
        const auto told = sizes.draw(folder.path() + name, "x", kGround);
        EXPECT_EQ(told.bmp, "");
        EXPECT_EQ(told.widthPx, drawn.widthPx);
        EXPECT_EQ(told.heightPx, drawn.heightPx);
        EXPECT_EQ(told.imageColour, drawn.imageColour);
    }
}

} // namespace
} // namespace quillmere
