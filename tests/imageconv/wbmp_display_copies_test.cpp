#include "imageconv/wbmp_display_copies.h"

#include "imageconv/bmp_writer.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

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

TEST(DisplayCopies, ShowClearBitsInDarkRedOnTheGroundAndTextsOfWhatCannotBeRead)
{
    const test::ScratchFolder folder;
    const std::string dots("\0\0\x04\x02\xF0\xAA", 6);
    folder.put("a.wbmp", dots);
    folder.put("leer.wbmp", "");
    folder.put("gross.wbmp", {"\0\0\xFF\x7F\xFF\x7F", 6});
    folder.put("typ1.wbmp", "\x01" + dots.substr(1));
    const auto picture = bmpBytes({4, 2, 1, {0x40, kGround}, "\xF0\xAA"});
    const auto pixel = bmpBytes({1, 1, 1, {kGround, kGround}, std::string(1, '\0')});
    const struct {
        const char *name, *text;
        bool standard;
        std::string bmp; // "": a text is drawn
        const char* drawn;
    } rows[] = {{"a.wbmp", "x", false, picture, nullptr}, {"leer.wbmp", "x", false, pixel, nullptr},
        {"typ1.wbmp", "x", false, picture, nullptr}, {"typ1.wbmp", "", true, "", " "},
        {"fehlt.wbmp", "Sehr langer Text hier", false, "", "Sehr langer ..."},
        {"gross.wbmp", "zwölf Zeich", false, "", "zwölf Zeich"}}; // 12 bytes
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        TextLog painter;
        WbmpDisplayCopies copies(OutputRules(row.standard), painter);
        const auto copy = copies.draw(folder.path() + row.name, row.text, kGround);
        const auto told
            = WbmpSizes{OutputRules(row.standard)}.draw(folder.path() + row.name, "x", kGround);
        EXPECT_EQ(copy.imageColour, kGround); // the palette's nearest, here the ground itself
        EXPECT_EQ(copy.widthPx, row.bmp == picture ? 4 : 0);
        EXPECT_EQ(copy.heightPx, row.bmp == picture ? 2 : 0);
        EXPECT_EQ(told.widthPx * 100 + told.heightPx, copy.widthPx * 100 + copy.heightPx);
        EXPECT_EQ(told.imageColour, copy.imageColour);
        EXPECT_EQ(row.drawn == nullptr ? copy.bmp : "", row.bmp);
        EXPECT_EQ(painter.texts,
            std::vector<std::string>(row.drawn == nullptr ? 0 : 1, row.drawn ? row.drawn : ""));
    }
}

TEST(DisplayCopies, DrawTextsThatCanBeReadOnAnyGround)
{
    const std::string red("\0\0\x40", 3);
    const std::string white = "\xFF\xFF\xFF";
    const std::pair<std::int32_t, std::string> rows[]
        = {{kGround, red}, {0xFFFFFF, red}, {0, white}, {0x40, white}};
    TextLog painter;
    WbmpDisplayCopies copies(OutputRules(), painter);
    for (const auto& [ground, colour] : rows) { // the last colour of the palette
        const auto bmp = copies.draw("fehlt.wbmp", "x", ground).bmp;
        EXPECT_EQ(bmp.substr(54 + 255 * 4, 3), colour) << ground;
        EXPECT_EQ(bmp[54], static_cast<char>(ground >> 16)) << "the first one is the ground";
    }
}

} // namespace
} // namespace quillmere
