#include "editor/window/source_search.h"

#include "editor/window/source_edit.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <tuple>

namespace quillmere {
namespace {

using Hits = std::vector<int>;

TEST(FindAll, FollowsCaseAndWords)
{
    const QString text = QStringLiteral("Äpfel äpfel xäpfel <p>P</p> aaa");
    const std::tuple<SourceQuery, Hits> rows[] = {
        {{QStringLiteral("äpfel")}, {0, 6, 13}},
        {{QStringLiteral("äpfel"), true}, {6, 13}},
        {{QStringLiteral("äpfel"), true, true}, {6}},
        {{QStringLiteral("p"), false, true}, {20, 22, 25}},
        {{QStringLiteral("<p>"), false, true}, {19}},
        {{QStringLiteral("aa")}, {28}}, // hits do not overlap
        {{QString()}, {}},
        {{QStringLiteral("fehlt")}, {}},
    };
    for (const auto& [query, wanted] : rows)
        EXPECT_EQ(findAll(text, query), wanted) << query.text.toStdString();
}

/// A source view with its bar.
struct Desk {
    SourceEdit edit;

    explicit Desk(const char* text)
    {
        edit.resize(900, 400);
        edit.setWml(text);
        edit.show();
        QApplication::setActiveWindow(&edit);
        edit.setFocus();
    }
    template <class Control> Control& control(const char* name)
    {
        return *edit.findChild<Control*>(QLatin1String(name));
    }
    static void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    static void type(const char* text)
    {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    }
    void click(const char* name) { QTest::mouseClick(&control<QWidget>(name), Qt::LeftButton); }
    std::string told() { return control<QLabel>("lblHits").text().toStdString(); }
    int caret() { return edit.textCursor().selectionStart(); }
    static std::string focus() { return QApplication::focusWidget()->objectName().toStdString(); }
};

TEST(SourceSearchBar, GoesFromHitToHitWithTheKeyboard)
{
    Desk desk("eins zwei eins\nEins");
    desk.key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(desk.focus(), "txtFind");
    EXPECT_FALSE(desk.control<QLineEdit>("txtReplace").isVisible());
    desk.type("eins");
    EXPECT_EQ(desk.told(), "3 Treffer");
    desk.key(Qt::Key_Return);
    EXPECT_EQ(desk.told() + " " + desk.focus(), "1 von 3 txtFind");
    desk.key(Qt::Key_F3);
    EXPECT_EQ(desk.caret(), 10);
    desk.key(Qt::Key_F3);
    desk.key(Qt::Key_F3);
    EXPECT_EQ(desk.told(), "1 von 3"); // around the end
    desk.key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(desk.caret(), 15);
    desk.click("chkMatchCase");
    EXPECT_EQ(desk.told(), "2 Treffer");
    desk.control<QLineEdit>("txtFind").setFocus();
    desk.type("x");
    EXPECT_EQ(desk.told(), "Kein Treffer");
    EXPECT_FALSE(desk.control<QWidget>("btnFindNext").isEnabled());
    desk.key(Qt::Key_Return);
    desk.key(Qt::Key_Down);
    desk.key(Qt::Key_Escape);
    EXPECT_FALSE(desk.edit.isSearching());
    EXPECT_TRUE(desk.edit.hasFocus());
    EXPECT_EQ(desk.edit.wml(), "eins zwei eins\r\nEins"); // no key got into the source
    desk.key(Qt::Key_F3);
    EXPECT_TRUE(desk.edit.isSearching()); // without a bar there is nothing to go on with
    desk.edit.closeSearch();
    desk.edit.setEnabled(false);
    desk.key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(desk.edit.isSearching());
}

TEST(SourceSearchBar, ReplacesOneAfterTheOtherAndAllInOneStep)
{
    Desk desk("<b>a</b> <b>c</b> <b>d</b>");
    int states = 0;
    QObject::connect(&desk.edit, &SourceEdit::aboutToBreak, [&] { ++states; });
    desk.key(Qt::Key_H, Qt::ControlModifier);
    desk.type("b>");
    desk.control<QLineEdit>("txtReplace").setFocus();
    desk.type("b>b>");
    desk.key(Qt::Key_Return); // shows the first
    EXPECT_EQ(desk.told(), "1 von 6");
    desk.key(Qt::Key_Return);
    EXPECT_EQ(desk.edit.wml(), "<b>b>a</b> <b>c</b> <b>d</b>");
    EXPECT_EQ(desk.caret(), 8); // behind what was put in
    desk.click("btnReplaceAll");
    EXPECT_EQ(desk.told(), "7 ersetzt");
    EXPECT_EQ(desk.edit.wml(), "<b>b>b>b>a</b>b> <b>b>c</b>b> <b>b>d</b>b>");
    EXPECT_EQ(states, 2);
    desk.edit.undo();
    desk.edit.undo();
    EXPECT_EQ(desk.edit.wml(), "<b>a</b> <b>c</b> <b>d</b>");
    desk.edit.setReadOnly(true);
    desk.click("btnReplaceAll");
    EXPECT_EQ(desk.edit.wml(), "<b>a</b> <b>c</b> <b>d</b>");
}

TEST(SourceSearchBar, ComesByItsKeyFromAnywhereInTheWindowWhileTheSourceIsShown)
{
    QWidget window;
    SourceEdit edit(&window);
    QPushButton button(&window);
    edit.hide();
    window.show();
    QApplication::setActiveWindow(&window);
    button.setFocus();
    for (const bool isShown : {false, true}) {
        edit.setVisible(isShown);
        QTest::keyClick(&button, Qt::Key_F, Qt::ControlModifier);
        EXPECT_EQ(edit.isSearching(), isShown);
    }
}

} // namespace
} // namespace quillmere
