// What each form of an element refuses or keeps beside what a person does with it in
// authoring_session_test.cpp.

#include "document/card_attributes.h"
#include "editor/dialogs/element_desk.h"

#include <QScrollBar>

namespace quillmere::test {
namespace {

TEST(FrmArea, KeepsAJumpWithoutCaption)
{
    ElementDesk desk;
    auto wml = deckOf({"eins"});
    wml.insert(wml.find("<p "), "<do type=\"accept\"><go href=\"http://a.de/\"/></do>\r\n");
    desk.open(wml);
    desk.use("mnuContext1AreaParameters", [](QWidget& form) {
        EXPECT_EQ(textOf(form, "txtUrlJump"), "http://a.de/");
        type(form, "txtTitle", "Neu");
        click(form, "btnNew");
    });
    EXPECT_TRUE(desk.messages.taken().empty());
    EXPECT_EQ(GetCardAttributes(desk.session.document, 0).title, "Neu");
    EXPECT_EQ(GetJump(desk.session.document, 0).target, "http://a.de/");
}

TEST(FrmArea, RefusesIdsThatNoLinkCanLeadTo)
{
    ElementDesk desk;
    desk.openCards({"eins", "zwei"});
    const auto before = desk.design(0);
    desk.use("mnuContext1AreaParameters", [](QWidget& form) {
        for (const char* id : {"b", "x y", "a\"b", " "}) {
            type(form, "txtId", id);
            click(form, "btnNew");
            EXPECT_TRUE(form.isVisible()) << id;
            EXPECT_EQ(form.focusWidget(), &control(form, "txtId"));
        }
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    EXPECT_EQ(desk.messages.taken().size(), 4U);
    EXPECT_EQ(desk.design(0), before);
}

TEST(FrmArea, DeletesAreasToTheLast)
{
    ElementDesk desk;
    desk.openCards({"eins", "zwei"});
    desk.click("btnAreaNext");
    desk.messages.answers = {true, true};
    const auto remove = [](QWidget& form) { click(form, "btnDelete"); };
    desk.use("mnuContext1AreaParameters", remove);
    EXPECT_EQ(desk.session.document.currentArea, 0);
    EXPECT_NE(desk.content().find("eins"), std::string::npos);
    EXPECT_TRUE(desk.window.docChanged());
    desk.use("mnuContext1AreaParameters", remove);
    EXPECT_EQ(areaCount(desk.session.document.deck), 0U);
    EXPECT_FALSE(desk.surface().isVisible());
    EXPECT_EQ(desk.messages.taken(), (std::vector<std::string>{"ask 4", "ask 4"}));
}

// 8 by 3 pixels; the first two bytes are type and fixed header.
const std::string kPicture("\x00\x00\x08\x03\xFF\x81\xFF\x00", 8);

struct ImageDesk : ElementDesk {
    ImageDesk()
    {
        folder.put("haus.wbmp", kPicture);
        openCards({"vorn hinten"});
        caretBehind("vorn");
    }
    QString path(const char* name) { return QString::fromStdString(folder.path() + name); }
    ImageEntry& entry() { return session.document.deck.front().images.end()[-2]; }
};

TEST(FrmImage, TakesPicturesFromElsewhereIntoTheProject)
{
    ImageDesk desk;
    const ScratchFolder other;
    other.put("haus.wbmp", kPicture + "x"); // another picture of this name
    other.put("baum.wbmp", kPicture);
    desk.dialogs.paths = {QString::fromStdString(other.path() + "baum.wbmp"),
        QString::fromStdString(other.path() + "haus.wbmp")};
    desk.use("mnuInsertImage2", [](QWidget& form) { click(form, "btnNew"); });
    EXPECT_EQ(desk.folder.get("baum.wbmp"), kPicture);
    EXPECT_EQ(desk.entry().sourceFile, "baum.wbmp");
    const auto before = desk.content();
    desk.messages.answers = {false};
    desk.use("mnuInsertImage2", [](QWidget& form) {
        click(form, "btnNew");
        EXPECT_TRUE(form.isVisible());
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    EXPECT_EQ(desk.content(), before);
    EXPECT_EQ(desk.folder.get("haus.wbmp"), kPicture);
}

TEST(FrmImage, TellsOfPicturesThatAreNotThere)
{
    ImageDesk desk;
    const auto before = desk.content();
    desk.dialogs.paths = {desk.path("fehlt.wbmp"), desk.path("haus.wbmp")};
    desk.choose("mnuInsertImage2");
    EXPECT_EQ(desk.messages.taken().size(), 1U);
    desk.use("mnuInsertImage2", [](QWidget& form) {
        for (const char* name : {"fehlt.wbmp", "haus.gif", "x"}) {
            type(form, "txtImage", name);
            click(form, "btnNew");
            EXPECT_TRUE(form.isVisible()) << name;
        }
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    EXPECT_EQ(desk.messages.taken().size(), 3U);
    EXPECT_EQ(desk.content(), before);
}

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
