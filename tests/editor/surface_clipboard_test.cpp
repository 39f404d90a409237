#include "editor/surface_clipboard.h"

#include "document/text/failure.h"
#include "document/text/limits.h"
#include "support/row_file.h"
#include "support/stopwatch.h"

#include <QImage>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(SurfaceClipboard, BringsHtmlInAsTheFormatsOfAnArea)
{
    for (const auto& row : test::rowsOf("html_of_others.txt"))
        EXPECT_EQ(designMarkupOf(QString::fromStdString(row.at(1))), row.at(2)) << row.at(0);
}

TEST(SurfaceClipboard, GivesOthersTheFormatsWithoutMarkersAndChips)
{
    const auto clip
        = clipOf("<!--go href=\"a>b\"/-->\xE4<b>x</b><timer value=\"1\"><br/>", "\u00E4x");
    EXPECT_EQ(clip->html(),
        "<html><head><meta charset=\"utf-8\"></head><body>\u00E4<b>x</b><br/></body></html>");
    EXPECT_EQ(clip->text(), "\u00E4x");
    const auto back = contentOf(*clip);
    EXPECT_EQ(
        std::get<std::string>(back), "<!--go href=\"a>b\"/-->\xE4<b>x</b><timer value=\"1\"><br/>");
}

TEST(SurfaceClipboard, FindsNothingInJunkAndRefusesWhatNoAreaCouldTake)
{
    QMimeData picture;
    picture.setImageData(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_FALSE(holdsContent(picture));
    QMimeData junk;
    junk.setData("application/octet-stream", QByteArray("\0\xFF\x80<b>", 6));
    EXPECT_FALSE(holdsContent(junk));
    QMimeData long1, long2;
    long1.setText(QString(kMaxTextLength + 1, u'x'));
    EXPECT_THROW((void)contentOf(long1), Overflow);
    long2.setHtml(QString(kMaxTextLength + 1, u'x'));
    EXPECT_THROW((void)contentOf(long2), Overflow);
    QMimeData pictureInHtml;
    pictureInHtml.setHtml("<img src=x>");
    pictureInHtml.setText("x");
    EXPECT_EQ(std::get<QString>(contentOf(pictureInHtml)), "x") << "nothing but the text is left";
}

TEST(SurfaceClipboard, ReadsHostileHtmlInTime)
{
    for (const char* piece : {"<div>", "<b>", "<table><tr><td>", "<ul><li>", "<", "&"}) {
        SCOPED_TRACE(piece);
        const auto html = QString(piece).repeated(1500);
        EXPECT_LT(test::millisecondsOf([&] { (void)designMarkupOf(html); }), 2500);
    }
}

} // namespace
} // namespace quillmere
