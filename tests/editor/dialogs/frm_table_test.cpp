#include "editor/dialogs/element_desk.h"

#include <QScrollBar>

namespace quillmere::test {
namespace {

TEST(FrmTable, RefusesNumbersOutOfItsLimits)
{
    ElementDesk desk;
    desk.openCards({"x"});
    desk.use("mnuContext1InsertTable", [&desk](QWidget& form) {
        type(form, "txtRows", "31");
        QTest::keyClick(&control(form, "txtRows"), Qt::Key_Tab);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !desk.messages.log.empty(); }, 2000));
        EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"show 135: 1|30"});
        EXPECT_EQ(textOf(form, "txtRows"), "2");
        EXPECT_EQ(form.focusWidget(), &control(form, "txtRows"));
        type(form, "txtRows", "a3b");
        EXPECT_EQ(textOf(form, "txtRows"), "3");
        EXPECT_EQ(control<QScrollBar>(form, "objScrollRows").value(), -3);
        QTest::keyClick(&control(form, "txtRows"), Qt::Key_Up);
        EXPECT_EQ(textOf(form, "txtRows"), "4");
        type(form, "txtColumns", "11");
        QTest::keyClick(&control(form, "txtColumns"), Qt::Key_Return);
        EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"show 135: 1|10"});
        EXPECT_TRUE(form.isVisible());
        type(form, "txtColumns", "");
        click(form, "btnCancel"); // leaving by Cancel asks nothing
    });
    QTest::qWait(20);
    EXPECT_TRUE(desk.messages.taken().empty());
    EXPECT_EQ(desk.content().find("<table"), std::string::npos);
}

} // namespace
} // namespace quillmere::test
