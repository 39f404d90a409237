// What holds for each of the shipped skins. Pictures of windows in them come from the gallery and
// from scripts/run.

#include "forms/skinned_window.h"
#include "forms/theme.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QMouseEvent>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

const std::string kSkins = QUILLMERE_SOURCE_DIR "/data/Skins/";

void press(QWidget& widget)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

template <typename Skins> void select(Skins& skins, std::size_t chosen)
{
    for (std::size_t i = 0; i < skins.size(); ++i)
        skins[i].Selected = i == chosen ? SkinHead::kSelected : std::int16_t(0);
}

TEST(EverySkin, HoldsTheWholeWindow)
{
    const SkinSettings store(kSkins);
    SkinTables tables;
    ReadEditorSkins(tables, store.settings);
    for (std::size_t i = 0; i + 1 < tables.EditorSkins.size(); ++i) {
        select(tables.EditorSkins, i);
        SCOPED_TRACE(std::string(tables.EditorSkins[i].Model.text()));
        SkinnedWindow window;
        QRect page;
        ApplyEditorSkin(
            window, tables, store.settings, [&](const PageLook& look) { page = look.place; });
        for (auto* child : window.findChildren<QWidget*>()) {
            EXPECT_TRUE(window.rect().contains(child->geometry()) || child->parent() != &window)
                << child->objectName().toStdString();
        }
        EXPECT_TRUE(window.rect().contains(page));
    }
}

TEST(EverySkin, LightsTheKeyOfItsTelephoneThatIsHeld)
{
    const SkinSettings store(kSkins);
    SkinTables tables;
    ReadPreviewSkins(tables, store.settings, false);
    for (std::size_t i = 0; i + 1 < tables.PreviewSkins.size(); ++i) {
        select(tables.PreviewSkins, i);
        SkinnedPreview window;
        ApplyPreviewSkin(window, tables, store.settings, nullptr);
        window.show();
        const auto rest = window.grab().toImage();
        press(*window.findChild<ToolLabel*>("lblButtonCommit"));
        EXPECT_NE(window.grab().toImage(), rest) << i;
    }
}

TEST(EverySkin, GivesADialogItsColours)
{
    const SkinSettings store(kSkins);
    SkinTables tables;
    ReadEditorSkins(tables, store.settings);
    for (std::size_t i = 0; i + 1 < tables.EditorSkins.size(); ++i) {
        const auto theme = themeOf(tables.EditorSkins[i]);
        applyTheme(*qobject_cast<QApplication*>(QApplication::instance()), theme);
        QDialog dialog;
        dialog.show();
        QApplication::processEvents();
        EXPECT_EQ(dialog.grab().toImage().pixelColor(3, 3), theme.shell);
    }
}

} // namespace
} // namespace quillmere
