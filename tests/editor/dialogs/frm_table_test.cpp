#include "editor/dialogs/element_desk.h"

#include <QComboBox>
#include <QScrollBar>

namespace quillmere::test {
namespace {

TEST(FrmTable, InsertsATableAndMarksItsFirstCell)
{
    ElementDesk desk;
    desk.openCards({"vorn hinten"});
    desk.caretBehind("vorn");
    desk.use("mnuContext1InsertTable", [](QWidget& form) {
        EXPECT_FALSE(control(form, "txtTitle").isVisible());
        EXPECT_FALSE(control(form, "btnDelete").isVisible());
        EXPECT_EQ(textOf(form, "txtRows"), "2");
        QTest::keyClick(&control(form, "txtRows"), Qt::Key_Up);
        EXPECT_EQ(textOf(form, "txtRows"), "3");
        type(form, "txtRows", "1");
        EXPECT_EQ(control<QScrollBar>(form, "objScrollRows").value(), -1);
        QTest::keyClick(&form, Qt::Key_Return);
    });
    const auto content = desk.content();
    EXPECT_NE(
        content.find(" align=\"L\" columns=\"2\" border=\"1\"><tr><td>Zelle</td><td>Zelle</td>"
                     "</tr></table><!--Test--> <!--Test2--></br> hinten"),
        std::string::npos)
        << content;
    EXPECT_EQ(content.find("vorn<table title=\"Tabelle"), content.find("vorn"));
    EXPECT_EQ(desk.surface().selectedText(), "Zelle");
    EXPECT_TRUE(desk.window.docChanged());
    desk.type("x");
    EXPECT_NE(desk.content().find("<tr><td>Zelle"), std::string::npos); // not stored yet
    desk.window.store();
    EXPECT_NE(desk.content().find("<tr><td>x</td><td>Zelle"), std::string::npos);
}

TEST(FrmTable, ChangesAndDeletesTheMarkedOne)
{
    ElementDesk desk;
    desk.openCards({"vor<table title=\"Alt\" align=\"C\" columns=\"2\"><tr><td>eins</td>"
                    "<td>zwei</td></tr></table>nach"});
    desk.caretBehind("ein");
    desk.use("mnuContext2PrepareElement", [](QWidget& form) {
        EXPECT_EQ(form.objectName(), "frmTable");
        EXPECT_EQ(textOf(form, "txtTitle"), "Alt");
        EXPECT_EQ(textOf(form, "txtRows"), "1");
        EXPECT_EQ(control<QComboBox>(form, "cboAlign").currentIndex(), 1);
        type(form, "txtTitle", "\"Neu\" & <alt>");
        type(form, "txtColumns", "1");
        click(form, "btnNew");
    });
    EXPECT_NE(
        desk.content().find("vor<table title=\"&quot;Neu&quot; &amp; &lt;alt&gt;\" align=\"C\" "
                            "columns=\"1\" border=\"1\"><tr><td>eins</td></tr></table>nach"),
        std::string::npos)
        << desk.content();

    desk.caretBehind("ein");
    desk.messages.answers = {false, true};
    desk.use("mnuContext2PrepareElement", [](QWidget& form) {
        EXPECT_EQ(textOf(form, "txtTitle"), "\"Neu\" & <alt>");
        click(form, "btnDelete");
        EXPECT_TRUE(form.isVisible()); // answered with No
        click(form, "btnDelete");
    });
    EXPECT_NE(desk.content().find("vornach"), std::string::npos) << desk.content();
    desk.choose("mnuContext1Copy");
    EXPECT_EQ(desk.session.document.deck.front().history.size(), 4U); // start and two edits
}

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

TEST(ElementForms, DoNotOpenInATable)
{
    ElementDesk desk;
    desk.openCards({"<table title=\"t\" columns=\"1\"><tr><td>eins</td></tr></table>"});
    desk.caretBehind("ein");
    for (const char* entry : {"mnuContext1InsertHyperlink", "mnuContext1InsertOption"}) {
        desk.choose(entry);
        EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"show 49"});
    }
}

} // namespace
} // namespace quillmere::test
