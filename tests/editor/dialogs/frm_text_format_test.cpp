#include "editor/dialogs/element_desk.h"

#include <QCheckBox>

#include <algorithm>
#include <set>

namespace quillmere::test {
namespace {

TEST(FrmTextFormat, ShowsWhatAPartOfTheMarkedHasAndLeavesIt)
{
    ElementDesk desk;
    desk.openCards({"eins<b> zwei</b> drei"});
    desk.mark("zwei drei");
    desk.use("mnuContext1FormatText", [](QWidget& form) {
        EXPECT_EQ(control<QCheckBox>(form, "chkBold").checkState(), Qt::PartiallyChecked);
        click(form, "chkItalic");
        EXPECT_TRUE(control<QLabel>(form, "lblPreviour").font().italic());
        click(form, "btnOk");
    });
    EXPECT_NE(desk.content().find("eins<i><b> zwei</b> drei</i>"), std::string::npos)
        << desk.content();
    EXPECT_EQ(desk.surface().selectedText(), "zwei drei");
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
    EXPECT_EQ(told[1], "show 252");
    EXPECT_EQ(told[2], "show 44");
}

/// The letters that Alt and a key reach in a form; each must be there once.
void expectOwnLetters(QWidget& form)
{
    std::set<QString> letters;
    const auto take = [&letters](const QString& text) {
        const auto keys = QKeySequence::mnemonic(text).toString();
        EXPECT_TRUE(keys.isEmpty() || letters.insert(keys).second) << text.toStdString();
    };
    for (const auto* button : form.findChildren<QAbstractButton*>())
        if (button->isVisible()) take(button->text());
    for (const auto* label : form.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy() != nullptr) take(label->text());
}

/// The tabulator reaches each field and goes down the form, to OK at the end of the fields.
void expectTabOrder(QWidget& form)
{
    std::vector<QWidget*> reached;
    for (auto* focus = form.focusWidget(); std::ranges::find(reached, focus) == reached.end();
         focus = form.focusWidget()) {
        reached.push_back(focus);
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    for (auto* field : form.findChildren<QLineEdit*>())
        EXPECT_TRUE(!field->isVisible() || !field->isEnabled()
            || std::ranges::find(reached, field) != reached.end())
            << field->objectName().toStdString();
    const auto top = [&form](const QWidget* control) {
        return control->mapTo(&form, QPoint(0, control->height() / 2)).y();
    };
    for (std::size_t i = 1; i < reached.size(); ++i) {
        const bool isBackAtTop = qobject_cast<QPushButton*>(reached[i - 1]) != nullptr
            && qobject_cast<QPushButton*>(reached[i]) == nullptr;
        const auto left
            = [&form](const QWidget* control) { return control->mapTo(&form, QPoint()).x(); };
        EXPECT_TRUE(isBackAtTop || top(reached[i - 1]) <= top(reached[i])
            || left(reached[i - 1]) < left(reached[i]))
            << reached[i]->objectName().toStdString();
    }
}

void expectGoodForms(const std::string& skins)
{
    ElementDesk desk(skins);
    int helpWanted = 0, forms = 0;
    desk.window.registerForm("Help", [&helpWanted](const FormCall&) { ++helpWanted; });
    desk.openCards({"eins <a href=\"#a\">zwei</a><select><option onpick=\"#a\">drei</option>"
                    "</select>"
                    "<table title=\"t\" columns=\"1\"><tr><td>vier</td></tr></table>"});
    const auto before = desk.content();
    const char* const rows[][2] = {{"mnuContext1InsertTable", "eins"},
        {"mnuContext1InsertOption", "eins"}, {"mnuContext1InsertHyperlink", "eins"},
        {"mnuInsertImage2", "eins"}, {"lblButtonJustify", "eins"},
        {"mnuContext1FormatText", "eins"}, {"mnuContext1AreaInsert", "eins"},
        {"mnuContext1AreaParameters", "eins"}, {"mnuContext2PrepareElement", "zwei"},
        {"mnuContext2PrepareElement", "drei"}, {"mnuContext2PrepareElement", "vier"}};
    const auto picture = desk.folder.put("b.wbmp", std::string("\0\0\x08\x01\xFF", 5));
    for (const auto& [entry, place] : rows) {
        SCOPED_TRACE(std::string(entry) + " " + place);
        desk.dialogs.paths = {QString::fromStdString(picture)};
        desk.mark(place);
        desk.use(entry, [&](QWidget& form) {
            ++forms;
            EXPECT_FALSE(form.windowTitle().isEmpty());
            expectOwnLetters(form);
            expectTabOrder(form);
            QTest::keyClick(&form, Qt::Key_F1);
            click(form, "btnHelp");
            QTest::keyClick(&form, Qt::Key_Escape);
        });
    }
    EXPECT_EQ(forms, 11);
    EXPECT_EQ(helpWanted, 2 * forms);
    EXPECT_EQ(desk.content(), before);
}

TEST(ElementForms, HaveNamesKeysAndHelp)
{
    for (const char* skins : {"Skins", "Skins.en"}) {
        SCOPED_TRACE(skins);
        expectGoodForms(skins);
    }
}

} // namespace
} // namespace quillmere::test
