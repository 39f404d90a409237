#include "document/card_attributes.h"
#include "editor/dialogs/element_desk.h"

#include <QComboBox>

namespace quillmere::test {
namespace {

TEST(FrmArea, LeadsToANewAreaWhoseFirstIdIsTaken)
{
    ElementDesk desk;
    auto wml = deckOf({"eins"});
    wml.replace(wml.find("id=\"a\""), 6, "id=\"Bereich2\"");
    desk.open(wml);
    desk.use("mnuContext1AreaInsert", [](QWidget& form) {
        EXPECT_FALSE(control(form, "btnDelete").isVisible());
        EXPECT_EQ(textOf(form, "txtId"), "Bereich3");
        type(form, "txtTitle", "Wer \"wir\" sind");
        click(form, "btnNew");
    });
    EXPECT_EQ(desk.session.document.currentArea, 1);
    EXPECT_EQ(GetCardAttributes(desk.session.document, 1).title, "Wer &quot;wir&quot; sind");
    EXPECT_EQ(GetCardAttributes(desk.session.document, 1).id, "Bereich3");
    EXPECT_EQ(GetJump(desk.session.document, 0).target, "#Bereich3");
    EXPECT_EQ(GetJump(desk.session.document, 0).name, "Sprung");
}

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

} // namespace
} // namespace quillmere::test
