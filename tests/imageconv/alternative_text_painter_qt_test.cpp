#include "imageconv/alternative_text_painter_qt.h"

#include "imageconv/wbmp_display_copies.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>

namespace quillmere {
namespace {

class AlternativeText : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static int count = 1;
        static char name[] = "imageconv_test";
        static char* arguments[] = {name, nullptr};
        static const QGuiApplication application(count, arguments);
    }
    QtAlternativeTextPainter painter{QFont("Sans Serif", 9)};
};

std::size_t pixelsOf(const TextCoverage& text, int atLeast)
{
    return std::size_t(std::count_if(text.pixels.begin(), text.pixels.end(),
        [&](char pixel) { return int(static_cast<unsigned char>(pixel)) >= atLeast; }));
}

TEST_F(AlternativeText, IsDrawnWholeWithAMargin)
{
    const auto text = painter.paint("Sehr langer ...");
    ASSERT_EQ(text.pixels.size(), std::size_t(text.widthPx) * std::size_t(text.heightPx));
    EXPECT_GT(text.widthPx, 60);
    EXPECT_GT(text.heightPx, 10);
    EXPECT_GT(pixelsOf(text, 200), 60U) << "stems are crisp";
    for (int y = 0; y < text.heightPx; ++y) {
        const auto row = text.pixels.substr(
            std::size_t(y) * std::size_t(text.widthPx), std::size_t(text.widthPx));
        EXPECT_EQ(row.front() + row.back(), 0);
        if (y == 0 || y + 1 == text.heightPx) {
            EXPECT_EQ(row.find_first_not_of('\0'), row.npos);
        }
    }
}

QImage imageOf(const std::string& bmp)
{
    return QImage::fromData(QByteArray(bmp.data(), qsizetype(bmp.size())), "BMP");
}

TEST_F(AlternativeText, DisplayCopiesOpenInAnotherReader)
{
    WbmpDisplayCopies copies(OutputRules(), painter);
    const auto text = imageOf(copies.draw("fehlt.wbmp", "Logo", 0x00247F07).bmp);
    ASSERT_FALSE(text.isNull());
    EXPECT_EQ(text.pixelColor(0, 0), QColor(0x07, 0x7F, 0x24));
    const WbmpPicture picture{{11, 2}, {"\xAA\xA0\x00\x20", 4}};
    const auto drawn = imageOf(drawPicture(picture, 0x00247F07));
    ASSERT_EQ(drawn.size(), QSize(11, 2));
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 11; ++x) {
            const QColor wanted = picture.isSet(x, y) ? QColor(0x07, 0x7F, 0x24) : QColor(64, 0, 0);
            EXPECT_EQ(drawn.pixelColor(x, y), wanted) << x << " " << y;
        }
    }
}

} // namespace
} // namespace quillmere
