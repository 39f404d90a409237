#include "forms/tool_label.h"

#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class ToolLabelTest : public testing::Test {
protected:
    ToolLabelTest()
    {
        window.resize(300, 200);
        for (auto* widget : {static_cast<QWidget*>(&picture), static_cast<QWidget*>(&tool)})
            widget->setGeometry(20, 20, 70, 64);
        tool.setText("Tabelle");
        QPalette colours(Qt::white, Qt::black);
        colours.setColor(QPalette::Highlight, Qt::red);
        colours.setColor(QPalette::HighlightedText, Qt::green);
        window.setPalette(colours);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QImage shot() { return tool.grab().toImage(); }

    QWidget window;
    ToolPicture picture{"picButtonTable", &window};
    ToolLabel tool{"lblButtonTable", &picture, &window};
    QSignalSpy down{&tool, &ToolLabel::mouseDown};
    QSignalSpy up{&tool, &ToolLabel::mouseUp};
    QSignalSpy clicked{&tool, &ToolLabel::clicked};
    const QPoint inside{30, 30};
    const QPoint outside{200, 150};
};

TEST_F(ToolLabelTest, ThePictureShowsWhileTheMouseHoldsTheTool)
{
    EXPECT_TRUE(picture.isHidden());
    for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
        QTest::mousePress(&tool, button, {}, inside);
        EXPECT_TRUE(picture.isVisible());
        EXPECT_EQ(down.takeLast().front().value<Qt::MouseButton>(), button);
        QTest::mouseRelease(&tool, button, {}, inside);
        EXPECT_TRUE(picture.isHidden());
        EXPECT_EQ(up.takeLast().front().value<Qt::MouseButton>(), button);
    }
    EXPECT_EQ(clicked.count(), 1) << "the right button does nothing";
    QTest::mousePress(&tool, Qt::LeftButton, {}, inside);
    QTest::mouseRelease(&tool, Qt::LeftButton, {}, outside);
    EXPECT_EQ(up.count(), 1);
    EXPECT_EQ(clicked.count(), 1) << "nor does a release outside";
    QTest::mousePress(&tool, Qt::LeftButton, {}, inside);
    tool.hide();
    EXPECT_TRUE(picture.isHidden());
    tool.show();
    EXPECT_FALSE(tool.isDown()) << "it went while it was held";
}

TEST_F(ToolLabelTest, KeysActAndADisabledToolDoesNot)
{
    tool.setFocus(Qt::TabFocusReason);
    QTest::keyPress(&tool, Qt::Key_Space);
    EXPECT_TRUE(picture.isVisible());
    QTest::keyRelease(&tool, Qt::Key_Space);
    EXPECT_TRUE(picture.isHidden());
    QTest::keyClick(&tool, Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 2);
    tool.setEnabled(false);
    QTest::mouseClick(&tool, Qt::LeftButton, {}, inside);
    EXPECT_EQ(clicked.count(), 2);
}

} // namespace
} // namespace quillmere
