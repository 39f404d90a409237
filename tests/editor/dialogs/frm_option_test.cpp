#include "editor/dialogs/element_desk.h"

#include <QComboBox>
#include <QRadioButton>

namespace quillmere::test {
namespace {

TEST(FrmOption, BuildsAndTakesDownAList)
{
    ElementDesk desk;
    desk.openCards({"Text", "zwei", "drei"});
    desk.caretBehind("Text");
    desk.use("mnuContext1InsertOption", [](QWidget& form) {
        EXPECT_EQ(textOf(form, "txtCaption"), "Option1");
        EXPECT_EQ(control<QComboBox>(form, "cboLink").count(), 3);
        EXPECT_EQ(control<QComboBox>(form, "cboLink").currentText(), "Bereich 2");
        type(form, "txtCaption", "A & B");
        QTest::keyClick(&form, Qt::Key_Return);
    });
    desk.use("mnuContext1InsertOption", [](QWidget& form) {
        type(form, "txtCaption", "Datei");
        type(form, "txtUrlJump", "http://a.de/b.wml?x=1&y=\"2\"");
        QTest::keyClick(&form, Qt::Key_Return);
    });
    EXPECT_NE(desk.content().find(
                  "Text<!--select--><!--option onpick=\"#b\"--><input type=radio "
                  "name=\"TempName1\" onclick=\"javascript:navigate('#b')\">A &amp; B<!--/option-->"
                  "<!--option onpick=\"http://a.de/b.wml?x=1&amp;y=&quot;2&quot;\"-->"),
        std::string::npos)
        << desk.content();
    EXPECT_NE(desk.contentWithCaret().find("<!--/select--><br/>|"), std::string::npos);

    desk.caretBehind("A &amp; B");
    desk.use("mnuContext2PrepareElement", [](QWidget& form) {
        EXPECT_EQ(textOf(form, "txtCaption"), "A & B");
        EXPECT_EQ(control<QComboBox>(form, "cboLink").currentText(), "Bereich 2");
        control<QComboBox>(form, "cboLink").setCurrentIndex(2);
        click(form, "btnNew");
    });
    EXPECT_NE(desk.content().find("<!--option onpick=\"#c\"-->"), std::string::npos);
    EXPECT_EQ(desk.content().find("<br/><br/>"), std::string::npos);

    desk.messages.answers = {true, true};
    for (const char* caption : {"A &amp; B", "Datei"}) {
        desk.caretBehind(caption);
        desk.use("mnuContext2PrepareElement", [](QWidget& form) { click(form, "btnDelete"); });
    }
    EXPECT_NE(desk.content().find("Text<br/></p>"), std::string::npos) << desk.content();
    EXPECT_EQ(desk.messages.taken(), (std::vector<std::string>{"ask 31", "ask 31"}));
}

TEST(FrmLinks, LinksAMarkedWord)
{
    ElementDesk desk;
    desk.openCards({"Ein Wort, <b>noch</b> eins."});
    desk.mark("Wort");
    desk.use("mnuContext1InsertHyperlink", [&desk](QWidget& form) {
        EXPECT_EQ(textOf(form, "txtCaption"), "Wort");
        type(form, "txtUrlJump", "www.a.de");
        EXPECT_TRUE(form.findChildren<QRadioButton*>("optShowAreaOrder").at(1)->isChecked());
        desk.messages.answers = {true};
        QTest::keyClick(&form, Qt::Key_Return);
    });
    EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"ask 129: http://www.a.de"});
    EXPECT_NE(
        desk.contentWithCaret().find("Ein <a href=\"http://www.a.de\">Wort</a> |, <b>noch</b>"),
        std::string::npos)
        << desk.contentWithCaret();

    desk.mark(" noch ");
    desk.use("mnuContext1InsertHyperlink", [](QWidget& form) {
        QTest::keyClick(&form, Qt::Key_Return); // to the only area
    });
    EXPECT_NE(desk.content().find("</a> , <b><a href=\"#a\">noch</a> </b>eins."), std::string::npos)
        << desk.content(); // the bold stays
}

TEST(FrmLinks, ChangesAndDeletesALink)
{
    ElementDesk desk;
    desk.openCards({"Ein <a href=\"#b\">Ziel</a> hier", "zwei"});
    desk.caretBehind("Zie");
    desk.folder.put("seite.wml", "<wml></wml>");
    desk.dialogs.paths = {QString::fromStdString(desk.folder.path() + "seite.wml")};
    desk.use("mnuContext2PrepareElement", [](QWidget& form) {
        EXPECT_EQ(control<QComboBox>(form, "cboLink").currentText(), "Bereich 2");
        click(form, "btnSearchUrl");
        EXPECT_EQ(textOf(form, "txtUrlJump"), "seite.wml");
        type(form, "txtCaption", "Seite");
        click(form, "btnNew"); // asks nothing about a file that is there
    });
    EXPECT_NE(desk.contentWithCaret().find("Ein <a href=\"seite.wml\">Seite</a>|  hier"),
        std::string::npos)
        << desk.contentWithCaret();
    desk.caretBehind("Seit");
    desk.messages.answers = {true};
    desk.use("mnuContext2PrepareElement", [](QWidget& form) { click(form, "btnDelete"); });
    EXPECT_NE(desk.content().find("Ein   hier"), std::string::npos) << desk.content();
}

TEST(FrmLinks, TellsWhatIsMissing)
{
    ElementDesk desk;
    desk.openCards({"Text<br/>mehr"});
    const auto before = desk.content();
    desk.use("mnuContext1InsertHyperlink", [](QWidget& form) {
        type(form, "txtCaption", "");
        QTest::keyClick(&control(form, "txtCaption"), Qt::Key_Backspace);
        click(form, "btnNew");
        EXPECT_EQ(form.focusWidget(), &control(form, "txtCaption"));
        type(form, "txtCaption", "x");
        form.findChildren<QRadioButton*>("optShowAreaOrder").at(1)->setChecked(true);
        click(form, "btnNew");
        EXPECT_EQ(form.focusWidget(), &control(form, "txtUrlJump"));
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

} // namespace
} // namespace quillmere::test
