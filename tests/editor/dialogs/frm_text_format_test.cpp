#include "editor/dialogs/element_desk.h"

#include <QCheckBox>
#include <QRadioButton>

namespace quillmere::test {
namespace {

QRadioButton& choice(QWidget& form, int index)
{
    return *form.findChildren<QRadioButton*>("optSchrift").at(index);
}

TEST(FrmTextFormat, FormatsWhatIsMarkedAndKeepsItMarked)
{
    ElementDesk desk;
    desk.openCards({"eins zwei drei"});
    desk.mark("zwei");
    desk.use("mnuContext1FormatText", [](QWidget& form) {
        EXPECT_FALSE(control<QCheckBox>(form, "chkBold").isChecked());
        EXPECT_TRUE(choice(form, 0).isChecked());
        QTest::keyClick(&control(form, "chkBold"), Qt::Key_Space);
        choice(form, 1).click();
        EXPECT_TRUE(control<QLabel>(form, "lblPreviour").font().bold());
        QTest::keyClick(&form, Qt::Key_Return);
    });
    EXPECT_NE(desk.content().find("eins<big><b> zwei</b></big> drei"), std::string::npos);
    EXPECT_EQ(desk.surface().selectedText(), "zwei");
    desk.mark("zwei drei");
    desk.use("mnuContext1FormatText", [](QWidget& form) {
        EXPECT_EQ(control<QCheckBox>(form, "chkBold").checkState(), Qt::PartiallyChecked);
        click(form, "chkItalic");
        click(form, "btnOk");
    });
    EXPECT_NE(
        desk.content().find("eins<big><i><b> zwei</b></i></big><i> drei</i>"), std::string::npos)
        << desk.content();
}

TEST(FrmTextFormat, RefusesBordersThatAFormatMustNotCross)
{
    ElementDesk desk;
    desk.openCards({"vorn<table title=\"t\" columns=\"2\"><tr><td>eins</td></tr></table>hinten"
                    "<select><option onpick=\"#a\">wahl</option></select>"});
    desk.surface().setCaretOffset(desk.surface().DocumentHTML().find("eins"));
    auto cursor = desk.surface().textCursor();
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    desk.surface().setTextCursor(cursor);
    desk.choose("mnuContext1FormatText");
    desk.mark("wahl");
    desk.choose("mnuContext1FormatText");
    desk.surface().moveCursor(QTextCursor::Start);
    desk.choose("mnuContext1FormatText");
    const auto told = desk.messages.taken();
    ASSERT_EQ(told.size(), 3U);
    EXPECT_TRUE(told[0] == "show 64" || told[0] == "show 63") << told[0];
    EXPECT_EQ(told[1].substr(0, 5), "text:");
    EXPECT_EQ(told[2], "show 44");
}

TEST(FrmJustify, AlignsTheLineOfTheCaret)
{
    ElementDesk desk;
    desk.openCards({"eins<br/>zwei<br/>drei"});
    desk.caretBehind("zw");
    const auto before = desk.content();
    const auto justify = [&desk](int shown, int wanted) {
        withNextModal([=](QWidget& form) {
            EXPECT_TRUE(choice(form, shown).isChecked());
            choice(form, wanted).click();
            QTest::keyClick(&form, Qt::Key_Return);
        });
        QTest::mouseClick(&desk.control<QWidget>("lblButtonJustify"), Qt::LeftButton);
    };
    justify(0, 1);
    EXPECT_NE(
        desk.contentWithCaret().find("eins</p><p align=\"center\">zw|ei</p><p"), std::string::npos)
        << desk.contentWithCaret();
    justify(1, 0);
    EXPECT_EQ(desk.content(), before);
}

TEST(ElementForms, HaveNamesKeysAndHelp)
{
    ElementDesk desk;
    int helpWanted = 0;
    desk.window.registerForm("Help", [&helpWanted](const FormCall&) { ++helpWanted; });
    desk.openCards({"eins zwei"});
    desk.mark("zwei");
    const auto before = desk.content();
    int forms = 0;
    for (const char* entry :
        {"mnuContext1InsertTable", "mnuContext1InsertOption", "mnuContext1InsertHyperlink",
            "mnuContext1AreaInsert", "mnuContext1AreaParameters", "mnuContext1FormatText"}) {
        SCOPED_TRACE(entry);
        desk.use(entry, [&](QWidget& form) {
            ++forms;
            EXPECT_FALSE(form.windowTitle().isEmpty());
            std::set<QString> letters;
            for (auto* button : form.findChildren<QAbstractButton*>()) {
                if (!button->isVisible()) continue;
                const auto keys = button->shortcut().toString();
                if (!keys.isEmpty()) {
                    EXPECT_TRUE(letters.insert(keys).second) << keys.toStdString();
                }
            }
            // Each field is reached by the tabulator, and the way leads back.
            auto* first = form.focusWidget();
            ASSERT_NE(first, nullptr);
            std::set<QWidget*> reached;
            for (int i = 0; i < 40 && reached.insert(form.focusWidget()).second; ++i)
                QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
            for (auto* field : form.findChildren<QLineEdit*>())
                EXPECT_TRUE(!field->isVisible() || !field->isEnabled() || reached.contains(field))
                    << field->objectName().toStdString();
            QTest::keyClick(&form, Qt::Key_F1);
            click(form, "btnHelp");
            QTest::keyClick(&form, Qt::Key_Escape);
        });
    }
    EXPECT_EQ(helpWanted, 2 * forms);
    EXPECT_EQ(forms, 6);
    EXPECT_EQ(desk.content(), before);
}

} // namespace
} // namespace quillmere::test
