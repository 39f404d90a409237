#include "forms/frm_assistent.h"

#include "gui/modal.h"
#include "gui/window_session.h"

#include <QAbstractButton>

namespace quillmere {
namespace {

using namespace test;

struct Assistant : testing::Test {
    WindowSession program;
    std::vector<std::string> log;

    /// What the assistant led to, and whether a form was still up by then.
    std::vector<std::string> run(const std::function<void(QWidget&)>& use)
    {
        const auto note = [this](const char* name) {
            return [this, name] {
                log.emplace_back(QApplication::activeModalWidget() == nullptr ? name : "too early");
            };
        };
        withNextModal(use);
        frmAssistent::showAndRun(
            program.session, {note("new"), note("open"), note("templates")}, nullptr);
        return std::exchange(log, {});
    }
    std::string shows() const { return program.settings.ReadSetting("ShowStartDialog"); }
};

TEST_F(Assistant, LeadsToWhatIsChosenByMouseOrKeyboard)
{
    using Log = std::vector<std::string>;
    EXPECT_EQ(run([](QWidget& form) { click(form, "btnNew"); }), Log{"new"});
    EXPECT_EQ(run([](QWidget& form) { click(form, "btnOpen"); }), Log{"open"});
    EXPECT_EQ(run([](QWidget& form) {
        QTest::keyClick(&form, Qt::Key_Tab);
        QTest::keyClick(&form, Qt::Key_Tab);
        EXPECT_TRUE(control(form, "picAssistant").isVisible());
        QTest::keyClick(form.focusWidget(), Qt::Key_Space);
    }),
        Log{"templates"});
    EXPECT_EQ(shows(), "");
    EXPECT_EQ(run([](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); }), Log{});
}

TEST_F(Assistant, IsSilencedHoweverItIsLeft)
{
    const auto leave = [this](const std::function<void(QWidget&)>& use) {
        program.settings.WriteSetting("ShowStartDialog", "Yes");
        (void)run([&](QWidget& form) {
            EXPECT_FALSE(control<QAbstractButton>(form, "chkShowAssistant").isChecked());
            click(form, "chkShowAssistant");
            use(form);
        });
        return shows();
    };
    EXPECT_EQ(leave([](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); }), "No");
    EXPECT_EQ(leave([](QWidget& form) { form.close(); }), "No");
    EXPECT_EQ(leave([](QWidget& form) { click(form, "btnNew"); }), "No");
}

} // namespace
} // namespace quillmere
