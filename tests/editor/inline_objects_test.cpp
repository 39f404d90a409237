#include "editor/inline_objects.h"

#include "editor/page_document.h"
#include "editor/page_formats.h"
#include "editor/picture_tag.h"
#include "support/scratch_folder.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(PictureTag, TellsPathSizeAndSpaceOrWhatIsMissing)
{
    const auto tag = readPictureTag("<IMG SRC='file:///t/Bmp0.bmp' alt=\"Sonne &amp; Mond\" "
                                    "style=\"height: 48px; width:32px\" width=7 hspace=\"3\">");
    EXPECT_EQ(tag.path, "/t/Bmp0.bmp");
    EXPECT_EQ(tag.alternativeText, "Sonne &amp; Mond");
    EXPECT_EQ(tag.widthPx, 32);
    EXPECT_EQ(tag.heightPx, 48);
    EXPECT_EQ(tag.horizontalSpacePx, 3);
    EXPECT_EQ(tag.verticalSpacePx, 0);
    for (const char* size : {"x", "", "-4", "0", "10000", "99999999999999"}) {
        SCOPED_TRACE(size);
        const auto text = std::string("<img width=\"") + size + "\">";
        EXPECT_EQ(readPictureTag(text).widthPx, std::nullopt);
    }
}

/// The pictures of a folder, and the sizes at which markup shows them.
class Shown {
public:
    test::ScratchFolder folder;

    void putPicture(const char* name, int width, int height) const
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(Qt::black);
        ASSERT_TRUE(picture.save(QString::fromStdString(folder.path() + name)));
    }
    /// The size of the first object of a page.
    QSizeF size(const std::string& markup)
    {
        pictures_.reset(folder.path());
        QTextDocument document;
        objects_.attachTo(document);
        const auto page = readSurfacePage(markup);
        showPage(document, page, {});
        QTextCursor cursor(&document);
        cursor.setPosition(1);
        return objects_.intrinsicSize(&document, 0, cursor.charFormat());
    }

private:
    PictureCache pictures_;
    InlineObjects objects_{pictures_};
};

TEST(InlineObjects, HaveTheSizeOfTheTagElseOfThePicture)
{
    Shown shown;
    shown.putPicture("a.bmp", 20, 10);
    const auto tag
        = [](const std::string& more) { return "<img src=\"a.bmp\" " + more + "></img>"; };
    EXPECT_EQ(shown.size(tag("")), QSizeF(20, 10));
    EXPECT_EQ(shown.size(tag("style=\"height: 30px; width: 40px\"")), QSizeF(40, 30));
    EXPECT_EQ(shown.size(tag("height=\"20\"")), QSizeF(40, 20));
    EXPECT_EQ(shown.size(tag("hspace=\"5\" vspace=\"1\"")), QSizeF(30, 12));
    const QSizeF radio = shown.size("<input type=radio style=\"width: 5px\">");
    EXPECT_EQ(radio, shown.size("<input type=\"radio\">")) << "whatever its tag asks for";
}

TEST(InlineObjects, ShowAFrameForWhatIsNoPicture)
{
    Shown shown;
    const QSizeF missing = shown.size("<img src=\"none.bmp\" alt=\"x\">");
    EXPECT_GT(missing.width(), 0);
    shown.putPicture("big.bmp", 1, 1);
    auto bytes = shown.folder.get("big.bmp");
    shown.folder.put("torn.bmp", bytes.substr(0, 20));
    shown.folder.put("junk.bmp", std::string(200, '\xFF'));
    const std::string tenThousand("\x10\x27\0\0", 4); // in its head, with nothing behind it
    shown.folder.put("big.bmp", bytes.replace(18, 8, tenThousand + tenThousand));
    for (const char* name : {"big.bmp", "torn.bmp", "junk.bmp", "", ".", "/dev/zero"}) {
        SCOPED_TRACE(name);
        const auto tag = std::string("<img src=\"") + name + "\" alt=\"x\">";
        EXPECT_EQ(shown.size(tag), missing);
    }
    EXPECT_EQ(shown.size("<img src=\"none.bmp\" width=\"50\" height=\"9\">"), QSizeF(50, 9));
}

} // namespace
} // namespace quillmere
