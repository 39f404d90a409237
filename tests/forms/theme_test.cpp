#include "forms/skinned_window.h"
#include "forms/theme.h"
#include "forms/theme_style.h"
#include "support/contrast.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace quillmere {
namespace {

const std::string kSkins = QUILLMERE_SOURCE_DIR "/data/Skins/";

double contrast(const QColor& a, const QColor& b)
{
    return test::contrast(a.rgb() & 0xFFFFFFU, b.rgb() & 0xFFFFFFU);
}

std::vector<Theme> shippedThemes()
{
    const SkinSettings store(kSkins);
    SkinTables tables;
    ReadEditorSkins(tables, store.settings);
    std::vector<Theme> themes;
    for (std::size_t i = 0; i + 1 < tables.EditorSkins.size(); ++i)
        themes.push_back(themeOf(tables.EditorSkins[i]));
    return themes;
}

TEST(Theme, DialogsCanBeReadInEverySkin)
{
    using P = QPalette;
    constexpr std::pair<P::ColorRole, P::ColorRole> kTexts[] = {{P::WindowText, P::Window},
        {P::Text, P::Base}, {P::Text, P::AlternateBase}, {P::ButtonText, P::Button},
        {P::HighlightedText, P::Highlight}, {P::ToolTipText, P::ToolTipBase},
        {P::PlaceholderText, P::Base}, {P::Link, P::Window}, {P::BrightText, P::Window}};
    for (const auto& theme : shippedThemes()) {
        const auto palette = paletteOf(theme);
        for (const auto& [ink, ground] : kTexts)
            EXPECT_GE(contrast(palette.color(ink), palette.color(ground)), 4.5)
                << ink << " on " << ground;
        for (const auto ground : {P::Window, P::Base, P::Button})
            EXPECT_GE(contrast(theme.edge, palette.color(ground)), 3.0) << "edge on " << ground;
    }
}

/// One window with the common controls, in a style of its own.
class ThemedControls : public testing::Test {
protected:
    ThemedControls()
    {
        applyTheme(*qobject_cast<QApplication*>(QApplication::instance()), theme);
        window.setPalette(paletteOf(theme));
        window.resize(400, 300);
        plain.setGeometry(10, 10, 100, 32);
        accept.setGeometry(120, 10, 100, 32);
        accept.setDefault(true);
        remove.setGeometry(230, 10, 100, 32);
        markAsDanger(remove);
        field.setGeometry(10, 60, 200, 32);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    static QColor at(QWidget& widget, int x, int y)
    {
        return widget.grab().toImage().pixelColor(x, y);
    }

    Theme theme;
    QDialog window;
    QPushButton plain{"Abbrechen", &window};
    QPushButton accept{"OK", &window};
    QPushButton remove{QString::fromUtf8("Löschen"), &window};
    QLineEdit field{&window};
};

TEST_F(ThemedControls, OneButtonIsTheDefaultOneAndEdgesAreSeen)
{
    plain.setAutoDefault(false);
    field.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(at(accept, 8, 6), theme.accent);
    EXPECT_NE(at(plain, 8, 6), theme.accent);
    EXPECT_EQ(at(plain, 50, 0), theme.edge);
    EXPECT_EQ(at(remove, 50, 0), theme.danger);
    EXPECT_EQ(at(field, 100, 0), theme.accent) << "the field that the person writes in";
}

} // namespace
} // namespace quillmere
