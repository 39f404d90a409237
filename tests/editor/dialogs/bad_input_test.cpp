// What a person types that markup could not hold as it stands, and what happens behind an open
// form.

#include "document/card_attributes.h"
#include "document/text/limits.h"
#include "editor/dialogs/element_desk.h"

namespace quillmere::test {
namespace {

TEST(BadInput, CaptionsAndTargetsMeanThemselvesAndComeBackFromTheFile)
{
    const struct {
        const char* caption;
        const char* target;
    } rows[] = {{"A & B", "a b.wml"}, {"<b>x</b>", "bilder\\karte.wml"},
        {"\"x\" 'y'", "x.wml?a=\"1\""}, {"$(preis) 5 $", "x.wml?$(name)&b=2"},
        {"&amp; -->", "x-->y.wml"}, {"<!--x", "a<b>.wml"}};
    for (const auto* tool : {"mnuContext1InsertHyperlink", "mnuContext1InsertOption"}) {
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(tool) + ": " + row.caption);
            ElementDesk desk;
            desk.openCards({"vorn hinten"});
            desk.caretBehind("vorn");
            desk.messages.answers = {false}; // the address stays as it was typed
            desk.use(tool, [&row](QWidget& form) {
                type(form, "txtCaption", row.caption);
                type(form, "txtUrlJump", row.target);
                QTest::keyClick(&form, Qt::Key_Return);
            });
            desk.window.AskAndSaveTmpWmlDocToWmlDoc(false);
            desk.open(desk.saved());
            ASSERT_TRUE(desk.messages.taken().size() <= 1);
            desk.mark(row.caption);
            desk.use("mnuContext2PrepareElement", [&row](QWidget& form) {
                EXPECT_EQ(textOf(form, "txtCaption"), row.caption);
                EXPECT_EQ(textOf(form, "txtUrlJump"), row.target);
                QTest::keyClick(&form, Qt::Key_Escape);
            });
        }
    }
}

TEST(BadInput, AFullAreaStaysAsItIs)
{
    ElementDesk desk;
    desk.openCards({"vorn hinten", "<a href=\"#a\">zwei</a>"});
    for (int area = 0; area < 2; ++area) {
        auto text = desk.design(area);
        text.insert(text.find("</BODY>"), std::string(kMaxTextLength - text.size(), 'x'));
        WriteDesignText(desk.session.document, static_cast<std::size_t>(area), text);
    }
    desk.window.RefreshSurface();
    desk.folder.put("b.wbmp", std::string("\0\0\x08\x01\xFF", 5));
    const auto first = desk.design(0), second = desk.design(1);
    const auto pictures = desk.session.document.deck.front().images.size();
    for (const auto* entry : {"mnuContext1InsertHyperlink", "mnuContext1InsertOption",
             "mnuContext1InsertTable", "mnuInsertImage2", "mnuContext1FormatText",
             "lblButtonJustify", "mnuContext1AreaParameters"}) {
        SCOPED_TRACE(entry);
        desk.dialogs.paths = {QString::fromStdString(desk.folder.path() + "b.wbmp")};
        desk.mark(entry[3] == 'B' || entry[11] == 'F' ? "vorn" : "hinten");
        if (entry[11] != 'F') desk.caretBehind("vorn");
        desk.use(entry, [&](QWidget& form) {
            for (auto* box : form.findChildren<QAbstractButton*>("chkBold"))
                box->click();
            if (auto* last = form.findChildren<QAbstractButton*>("optSchrift").value(2))
                last->click();
            if (form.objectName() == "frmArea") type(form, "txtId", "einlangerName");
            QTest::keyClick(&form, Qt::Key_Return);
            EXPECT_TRUE(form.isVisible());
            QTest::keyClick(&form, Qt::Key_Escape);
        });
        const auto told = desk.messages.taken();
        ASSERT_EQ(told.size(), 1U);
        EXPECT_EQ(told[0].substr(0, 9), "failure: ");
        EXPECT_TRUE(desk.design(0) == first && desk.design(1) == second);
    }
    EXPECT_EQ(desk.session.document.deck.front().images.size(), pictures);
    EXPECT_EQ(areaCount(desk.session.document.deck), 2U);
}

TEST(BadInput, AnElementThatIsGoneIsTold)
{
    const char* const rows[][2] = {{"<a href=\"#a\">eins</a>", "eins"},
        {"<select><option onpick=\"#a\">zwei</option></select>", "zwei"},
        {"<table title=\"t\" columns=\"1\"><tr><td>drei</td></tr></table>", "drei"}};
    for (const auto& [element, place] : rows) {
        for (const char* button : {"btnNew", "btnDelete"}) {
            SCOPED_TRACE(std::string(place) + button);
            ElementDesk desk;
            desk.openCards({std::string("vor ") + element + " nach"});
            auto gone = desk.design(0);
            const auto begin = gone.find("vor ") + 4;
            gone.erase(begin, gone.find(" nach") - begin);
            desk.mark(place);
            desk.messages.answers = {true};
            desk.use("mnuContext2PrepareElement", [&](QWidget& form) {
                WriteDesignText(desk.session.document, 0, gone);
                click(form, button);
            });
            EXPECT_EQ(desk.messages.taken().back(), "show 247");
            EXPECT_EQ(desk.design(0), gone);
        }
    }
}

} // namespace
} // namespace quillmere::test
