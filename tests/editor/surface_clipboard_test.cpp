#include "editor/surface_clipboard.h"

#include "document/text/failure.h"
#include "document/text/limits.h"
#include "support/stopwatch.h"

#include <QImage>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(SurfaceClipboard, BringsHtmlInAsTheFormatsOfAnArea)
{
    const char* const rows[][3] = {
        {"paragraphs", "<p>eins</p><p>zwei<br>drei</p>", "eins<br/>zwei<br/>drei"},
        {"formats", "<b>a</b><em>b</em><u>c</u><small>d</small>",
            "<b>a</b><i>b</i><u>c</u><small>d</small>"},
        {"formats of a style sheet",
            "<style>.x{font-weight:700}</style><span class=x>a</span><span "
            "style='font-style:italic'>b</span>",
            "<b>a</b><i>b</i>"},
        {"a heading", "<h1>Titel</h1>Text", "<b><big>Titel</big></b><br/>Text"},
        {"a link", "<a href='x?a=1&amp;b=\"'><b>w</b></a>",
            "<a href=\"x?a=1&amp;b=&quot;\"><b>w</b></a>"},
        {"a list", "<ul><li>a<li>b</ul>", "a<br/>b"},
        {"a table", "<table><tr><td>a<td>b<tr><td>c<td>d</table>", "a b<br/>c d"},
        {"entities", "&lt;&amp;&nbsp;&euro;&rarr;", "&lt;&amp;&nbsp;\x80&#8594;"},
        {"what an area has not",
            "<script>x</script><img src='file:///etc/passwd'>"
            "<form>a<!--StartFragment--><font color=red>b</font>",
            "b"},
        {"nothing", "<html><body></body></html>", ""},
    };
    for (const auto& [name, html, markup] : rows)
        EXPECT_EQ(designMarkupOf(html), markup) << name;
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
