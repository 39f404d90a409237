#include "editor/dialogs/element_desk.h"

#include <QRadioButton>

namespace quillmere::test {
namespace {

TEST(FrmLinks, TellsWhatIsMissing)
{
    ElementDesk desk;
    desk.openCards({"Text<br/>mehr"});
    const auto before = desk.content();
    desk.folder.put("seite.wml", "<wml></wml>");
    desk.dialogs.paths = {QString::fromStdString(desk.folder.path() + "seite.wml")};
    desk.use("mnuContext1InsertHyperlink", [](QWidget& form) {
        click(form, "btnSearchUrl");
        EXPECT_EQ(textOf(form, "txtUrlJump"), "seite.wml");
        type(form, "txtUrlJump", "x");
        QTest::keyClick(&control(form, "txtUrlJump"), Qt::Key_Backspace);
        click(form, "btnNew");
        EXPECT_EQ(form.focusWidget(), &control(form, "txtUrlJump"));
        type(form, "txtCaption", "");
        QTest::keyClick(&control(form, "txtCaption"), Qt::Key_Backspace);
        click(form, "btnNew");
        EXPECT_EQ(form.focusWidget(), &control(form, "txtCaption"));
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    EXPECT_EQ(desk.messages.taken().size(), 2U);
    desk.surface().selectAll();
    desk.use("mnuContext1InsertHyperlink", [](QWidget& form) {
        click(form, "btnNew"); // a line break cannot become a link
        EXPECT_TRUE(form.isVisible());
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    EXPECT_EQ(desk.messages.taken().size(), 1U);
    EXPECT_EQ(desk.content(), before);
}

TEST(FrmLinks, AsksNothingOfAnAddressThatStays)
{
    ElementDesk desk;
    desk.settings.WriteSetting("StandardOutput", "Yes");
    desk.openCards({"<a href=\"../x.php?a=1&amp;b\">Wort</a>"});
    desk.mark("Wort");
    desk.use("mnuContext2PrepareElement", [](QWidget& form) {
        type(form, "txtCaption", "Neu");
        click(form, "btnNew");
    });
    EXPECT_NE(desk.content().find("<a href=\"../x.php?a=1&amp;b\">Neu</a>"), std::string::npos);
    EXPECT_TRUE(desk.messages.taken().empty());
}

} // namespace
} // namespace quillmere::test
