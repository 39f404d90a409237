#include "editor_layout.h"
#include "editor_records.h"
#include "skin_items.h"
#include "telephones.h"

#include "skins/skin_controls.h"
#include "skins/user_devices.h"

#include <QFileInfo>
#include <QImageReader>
#include <QRect>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

const QString kSkins = QUILLMERE_SOURCE_DIR "/data/Skins/";

QRect rectangleOf(const SkinItem& item)
{
    return {item.Left, item.Top, item.Width, item.Height};
}

/// A picture is there at both sizes, and as large as what shows it.
void expectPicture(const SkinItem& item)
{
    const auto name = QString::fromStdString(std::string(item.Picture.text()));
    if (name.isEmpty()) return;
    SCOPED_TRACE(name.toStdString());
    const QSize plain = QImageReader(kSkins + name).size();
    const auto twice = QString(name).replace(".png", "@2x.png");
    EXPECT_EQ(QImageReader(kSkins + twice).size(), plain * 2);
    EXPECT_TRUE(name.contains("-icon-") || plain == rectangleOf(item).size());
}

TEST(EditorLayout, EveryControlHasRoomOfItsOwn)
{
    const auto record = editorRecord(kEditorTokens[0]);
    const QRect window(0, 0, kWindowWidth, kWindowHeight);
    std::vector<std::pair<std::string, QRect>> places;
    for (std::size_t i = 0; i < std::size(kSkinTools); ++i)
        places.emplace_back(kSkinTools[i], rectangleOf(record.buttons[i].clickArea));
    for (const auto& control : kSkinControls)
        places.emplace_back(control.name, rectangleOf(record.items[std::size_t(control.part)]));
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto& [name, place] = places[i];
        EXPECT_GE(place.width(), 32) << name;
        EXPECT_GE(place.height(), 32) << name;
        EXPECT_TRUE(window.contains(place)) << name;
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(place.intersects(places[k].second)) << name << ", " << places[k].first;
    }
}

TEST(EditorLayout, EveryPictureOfTheRecordsShips)
{
    for (const auto& tokens : kEditorTokens) {
        const auto record = editorRecord(tokens);
        for (const auto& item : record.items)
            expectPicture(item);
        for (const auto& button : record.buttons)
            expectPicture(button.picture);
    }
    for (std::size_t i = 0; i < telephones().size(); ++i) {
        const auto record = telephoneRecord(i, false);
        for (const auto& item : record.items)
            expectPicture(item);
        for (const auto& button : record.buttons)
            expectPicture(button.picture);
    }
}

TEST(Telephones, EachDisplayLiesWithinTheBoundsOfItsDevice)
{
    const auto devices = readUserDevices(userDevicesText());
    ASSERT_EQ(devices.size(), telephones().size() + 1);
    for (std::size_t i = 0; i < telephones().size(); ++i) {
        const auto record = telephoneRecord(i, false);
        const auto& device = devices[std::size_t(record.LastValue)];
        SCOPED_TRACE(device.Name);
        const auto& display = record.items[std::size_t(PreviewPart::Display)];
        EXPECT_EQ(device.Producer, record.Producer.text());
        EXPECT_LE(device.MinWidth, display.Width);
        EXPECT_LE(display.Width, device.MaxWidth);
        EXPECT_LE(device.MinHeight, display.Height);
        EXPECT_LE(display.Height, device.MaxHeight);
        EXPECT_EQ(device.DefaultWidth, display.Width);
    }
}

} // namespace
} // namespace quillmere
