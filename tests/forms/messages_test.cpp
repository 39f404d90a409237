#include "forms/frm_message.h"
#include "forms/message_icon.h"
#include "forms/window_messages.h"

#include "document/platform/word_ids.h"
#include "gui/modal.h"
#include "gui/window_session.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace quillmere {
namespace {

using namespace test;

struct NoteCase {
    Note kind;
    int text;
    const char* setting; // nullptr: cannot be silenced
    bool hasNo;
};

constexpr NoteCase kNotes[] = {
    {Note::Option, word::kNoteOption, "ShowOptionMessage", false},
    {Note::Image, word::kNoteImage, "ShowImageMessage", false},
    {Note::Plain, word::kNotePlain, nullptr, false},
    {Note::ImageLayout, word::kNoteImageLayout, "ShowImageMessage", false},
    {Note::SelectRepair, word::kNoteSelectRepair, "ShowSelectTagCorrectMessage", true},
};

struct Notes : testing::Test {
    WindowSession program;
    WindowMessages messages{program.words};

    Notes() { messages.useSession(program.session); }
    bool show(Note kind, const std::function<void(QWidget&)>& use)
    {
        withNextModal(use);
        return messages.showNote(kind);
    }
    bool hasIcon(QWidget& box, MessageIcon icon)
    {
        const auto wanted = messageIcon(icon, activeTheme(program.session.skins), 1);
        return dynamic_cast<QMessageBox&>(box).iconPixmap().toImage() == wanted.toImage();
    }
    std::string setting(const NoteCase& note) const
    {
        return program.settings.ReadSetting(note.setting);
    }
};

TEST_F(Notes, ShowTheirTextAndWriteTheirSettingOnOkOnly)
{
    for (const auto& note : kNotes) {
        SCOPED_TRACE(static_cast<int>(note.kind));
        const bool assented = show(note.kind, [&](QWidget& form) {
            EXPECT_EQ(control<QLabel>(form, "lblDescription").text().toStdString(),
                QString::fromStdString(toUtf8(program.words.GetWord(note.text))).toStdString());
            EXPECT_EQ(control(form, "chkShowNote").isVisible(), note.setting != nullptr);
            EXPECT_EQ(control(form, "btnCancel").isVisible(), note.hasNo);
            if (note.hasNo) {
                EXPECT_EQ(control<QAbstractButton>(form, "btnOk").text(), QString("&Ja"));
            }
            if (note.setting != nullptr) QTest::keyClick(&control(form, "chkShowNote"), ' ');
            QTest::keyClick(&form, Qt::Key_Return);
        });
        EXPECT_TRUE(assented);
        if (note.setting == nullptr) continue;
        EXPECT_EQ(setting(note), "No");
        EXPECT_FALSE(show(note.kind, [&](QWidget& form) {
            EXPECT_FALSE(control<QAbstractButton>(form, "chkShowNote").isChecked());
            QTest::keyClick(&form, Qt::Key_Escape);
        }));
        EXPECT_EQ(setting(note), "No") << "Escape writes nothing";
        EXPECT_TRUE(show(note.kind, [&](QWidget& form) { click(form, "btnOk"); }));
        EXPECT_EQ(setting(note), "Yes");
    }
    EXPECT_FALSE(show(Note::SelectRepair, [](QWidget& form) { click(form, "btnCancel"); }));
}

TEST_F(Notes, QuestionsAreAnsweredByTheKeyboardAndTextsAreShownAsTheyAre)
{
    program.session.gSurfaceActive = true;
    const std::string gap = "<b>a&amp;b</b>.wml";
    struct Row {
        int key;
        bool answer;
    };
    for (const auto& row : {Row{Qt::Key_Return, true}, {'J', true}, {'N', false}}) {
        withNextModal([&](QWidget& window) {
            auto& box = dynamic_cast<QMessageBox&>(window);
            EXPECT_TRUE(box.text().contains(QString::fromStdString(gap)));
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_TRUE(hasIcon(box, MessageIcon::Question));
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
            QApplication::sendEvent(&box, &held);
            EXPECT_TRUE(box.isVisible());
            QTest::keyClick(&box, Qt::Key_Escape);
            EXPECT_TRUE(box.isVisible()) << "Escape answers no question";
            if (row.key > 'Z') {
                QTest::keyClick(&box, static_cast<Qt::Key>(row.key));
            } else {
                QTest::keyClick(&box, static_cast<char>(row.key), Qt::AltModifier);
                QTest::qWait(200); // the button is seen going down first
            }
        });
        EXPECT_EQ(
            messages.ask(word::kReplaceByNewDeck, {&gap, 1}, MessageIcon::Question), row.answer);
    }
    EXPECT_FALSE(program.session.gSurfaceActive);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    withNextModal([&](QWidget& window) {
        EXPECT_TRUE(hasIcon(window, MessageIcon::Critical));
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    messages.ShowCriticalError("Die Platte ist voll.");
    withNextModal([&](QWidget& window) {
        EXPECT_TRUE(hasIcon(window, MessageIcon::None));
        click(window, "btnOk");
    });
    messages.show(word::kNoDeckOpen, {}, MessageIcon::None);
}

} // namespace
} // namespace quillmere
