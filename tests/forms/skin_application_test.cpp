#include "forms/skin_application.h"

#include "forms/skin_picture.h"
#include "forms/skinned_window.h"
#include "forms/window_outline.h"
#include "support/scratch_folder.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

const std::string kSkins = QUILLMERE_SOURCE_DIR "/data/Skins/";

SkinItem someItem()
{
    SkinItem item;
    item.Left = 10;
    item.Top = 20;
    item.Width = 30;
    item.Height = 40;
    item.BackColor = 0x0000FF; // red in the low byte
    item.ForeColor = 0xFF0000;
    item.FontName.set("Inter");
    item.FontSize = 9;
    return item;
}

/// A directory of skins of the test's own, with a picture and its double.
class SkinFolder {
public:
    SkinFolder()
        : store(folder.path())
    {
        picture("a.png", 30, Qt::green);
        picture("a@2x.png", 60, Qt::blue);
        picture("single.png", 30, Qt::red);
    }
    QString path(const char* name = "") const
    {
        return QString::fromStdString(folder.path()) + name;
    }
    void picture(const char* name, int side, const QColor& colour) const
    {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(colour);
        image.save(path(name));
    }
    void file(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    test::ScratchFolder folder;
    SkinSettings store;
};

QByteArray bytesOf(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(ApplyItem, SetsWhatTheControlHas)
{
    const SkinFolder skins;
    QWidget window;
    QPushButton button(&window);
    auto item = someItem();
    item.Picture.set("a.png");
    ApplyItem(button, item, skins.path());
    EXPECT_EQ(button.geometry(), QRect(10, 20, 30, 40));
    EXPECT_EQ(button.font().pointSize(), 9);
    EXPECT_EQ(button.font().family(), "Inter");
    EXPECT_EQ(button.palette().color(QPalette::Button), QColor(Qt::red));
    EXPECT_EQ(button.palette().color(QPalette::ButtonText), QColor(Qt::blue));
    EXPECT_FALSE(button.icon().isNull());

    QLabel label(&window);
    ApplyItem(label, item, skins.path());
    EXPECT_EQ(label.pixmap(Qt::ReturnByValue).size(), QSize(30, 30));
    ToolPicture picture("picButtonX", &window);
    ApplyItem(picture, item, skins.path());
    EXPECT_EQ(picture.picture().size(), QSize(30, 30));
    QPlainTextEdit text(&window); // has no picture
    ApplyItem(text, item, skins.path());
    EXPECT_EQ(text.palette().color(QPalette::Base), QColor(Qt::red));
}

TEST(SkinPicture, ComesAtDoubleSizeWhereTheScreenHasIt)
{
    const SkinFolder skins;
    EXPECT_EQ(skinPicture(skins.path("a.png"), 1).size(), QSize(30, 30));
    for (const double ratio : {1.25, 2.0}) {
        const auto twice = skinPicture(skins.path("a.png"), ratio);
        EXPECT_EQ(twice.size(), QSize(60, 60));
        EXPECT_EQ(twice.deviceIndependentSize(), QSizeF(30, 30));
    }
    EXPECT_EQ(skinPicture(skins.path("single.png"), 2).deviceIndependentSize(), QSizeF(30, 30));
    EXPECT_TRUE(skinPicture(skins.path("missing.png"), 2).isNull());
    EXPECT_TRUE(skinPicture(skins.path(), 1).isNull()) << "a directory";
}

template <typename Skins> void select(Skins& skins, std::size_t chosen)
{
    for (std::size_t i = 0; i < skins.size(); ++i)
        skins[i].Selected = i == chosen ? SkinHead::kSelected : std::int16_t(0);
}

TEST(ApplyEditorSkin, KeepsTheWindowsPlaceAndFillsAllControls)
{
    const SkinSettings store(kSkins);
    SkinTables tables;
    ReadEditorSkins(tables, store.settings);
    for (std::size_t i = 0; i + 1 < tables.EditorSkins.size(); ++i) {
        select(tables.EditorSkins, i);
        SCOPED_TRACE(std::string(tables.EditorSkins[i].Model.text()));
        SkinnedWindow window;
        window.move(77, 66);
        PageLook page;
        ApplyEditorSkin(window, tables, store.settings, [&](const PageLook& look) { page = look; });
        EXPECT_EQ(window.pos(), QPoint(77, 66));
        EXPECT_EQ(window.size(), QSize(960, 700));
        EXPECT_FALSE(window.picture().isNull());
        EXPECT_TRUE(window.rect().contains(page.place));
        EXPECT_EQ(page.fontSizePx, 16);
        EXPECT_EQ(page.fontFamily, "Inter");
        for (auto* child : window.findChildren<QWidget*>())
            EXPECT_TRUE(window.rect().contains(child->geometry()) || child->parent() != &window)
                << child->objectName().toStdString();
        for (auto* picture : window.findChildren<ToolPicture*>())
            EXPECT_TRUE(picture->isHidden() && !picture->picture().isNull())
                << picture->objectName().toStdString();
    }
}

TEST(ApplyEditorSkin, AnySkinFileLeavesAWindow)
{
    const auto good = bytesOf(kSkins + "Adjust.ini");
    auto wild = good;
    for (int i = 450; i < wild.size(); i += 7)
        wild[i] = char(i * 31);
    const QByteArray kFiles[] = {"", "x", good.left(20167), good.left(30000), good + "rest", wild,
        QByteArray(20168, '\0'), QByteArray(60504, ' '), QByteArray(20168, '\xFF')};
    // the index of the telephone: where there is no editor skin that of the spare record, or beyond
    for (int i = 0; i < 2 * int(std::size(kFiles)); ++i) {
        SCOPED_TRACE(i);
        const SkinFolder skins;
        skins.file("Adjust.ini", kFiles[i / 2]);
        skins.file("AdjuPrev.ini", bytesOf(kSkins + "AdjuPrev.ini"));
        SkinTables tables;
        ReadEditorSkins(tables, skins.store.settings);
        ReadPreviewSkins(tables, skins.store.settings, false);
        select(tables.PreviewSkins, i % 2 == 0 ? 0 : 2);
        SkinnedWindow window;
        window.resize(300, 200);
        const auto place = window.tool("Help").geometry();
        ApplyEditorSkin(window, tables, skins.store.settings, [](const PageLook&) {});
        window.grab();
        EXPECT_FALSE(window.size().isEmpty());
        const bool hasSkin = !tables.EditorSkins.front().Model.text().empty();
        EXPECT_TRUE(hasSkin || window.tool("Help").geometry() == place);
    }
}

QByteArray pointsOf(const std::vector<std::pair<qint32, qint32>>& points)
{
    QByteArray bytes;
    for (const auto& [x, y] : points) {
        for (const auto value : {x, y}) {
            for (int shift = 0; shift < 32; shift += 8)
                bytes += char(quint32(value) >> shift & 0xFF);
        }
    }
    return bytes;
}

QRegion outlineOf(QWidget& window, const QByteArray& file)
{
    const test::ScratchFolder folder;
    folder.put("AdjPnt.ini", file.toStdString());
    const SkinSettings store(folder.path());
    QRegion region(1, 2, 3, 4);
    SetWindowOutline(window, store.settings, region);
    return region;
}

TEST(WindowOutline, TheSpareCornerIsAVertex)
{
    QWidget window;
    window.resize(100, 100);
    const auto region = outlineOf(window, pointsOf({{100, 50}, {100, 100}, {50, 100}}));
    EXPECT_TRUE(region.contains({20, 20})) << "towards (0, 0)";
    EXPECT_FALSE(region.contains({90, 20}));
    EXPECT_EQ(window.mask(), region);
    QRegion taken = region;
    ClearWindowOutline(window, taken);
    EXPECT_TRUE(taken.isEmpty());
    EXPECT_TRUE(window.mask().isEmpty());
}

} // namespace
} // namespace quillmere
