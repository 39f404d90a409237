#include "forms/window_outline.h"

#include "forms/skinned_window.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

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

TEST(WindowOutline, AFileThatShowsNothingLeavesTheWindow)
{
    const QByteArray kFiles[] = {"", "abc", pointsOf({{5, 5}}), QByteArray(80000, '\x7F'),
        pointsOf({{5000, 5000}, {6000, 5000}, {5000, 5000}, {0, 0}}), QByteArray(24, '\xFF')};
    for (const auto& file : kFiles) {
        QWidget window;
        window.resize(100, 100);
        EXPECT_TRUE(outlineOf(window, file).isEmpty());
        EXPECT_TRUE(window.mask().isEmpty());
    }
    QWidget window;
    const MemorySettings none;
    QRegion region(1, 2, 3, 4);
    SetWindowOutline(window, none, region);
    EXPECT_TRUE(region.isEmpty());
}

} // namespace
} // namespace quillmere
