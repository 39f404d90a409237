#include "editor/dialogs/element_desk.h"

#include <QCheckBox>
#include <QComboBox>

namespace quillmere::test {
namespace {

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

TEST(FrmImage, ChangesSizeAndPicture)
{
    ImageDesk desk;
    desk.settings.WriteSetting("ShowImageMessage", "Yes");
    desk.dialogs.paths = {desk.path("haus.wbmp")};
    desk.use("mnuInsertImage2", [&desk](QWidget& form) {
        desk.messages.answers = {true};
        click(form, "chkCommitAll");
        EXPECT_TRUE(control(form, "txtHeight").isEnabled());
        type(form, "txtHeight", "2");
        type(form, "txtWidth", "9"); // wider than the picture
        click(form, "btnNew");
        EXPECT_EQ(textOf(form, "txtWidth"), "8");
        control<QComboBox>(form, "cboAlign").setCurrentIndex(2);
        click(form, "btnNew");
    });
    EXPECT_EQ(desk.messages.taken(), (std::vector<std::string>{"note 2", "show 135: 1|8"}));
    EXPECT_NE(desk.content().find("align=\"bottom\" style=\"height: 2px; width: 8px\">"),
        std::string::npos);
    EXPECT_TRUE(desk.entry().hasLayout);
    EXPECT_EQ(desk.entry().heightPx, 2);
    desk.window.AskAndSaveTmpWmlDocToWmlDoc(false);
    EXPECT_NE(desk.saved().find("align=\"bottom\" height=\"2\" width=\"8\""), std::string::npos)
        << desk.saved();
}

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

} // namespace
} // namespace quillmere::test
