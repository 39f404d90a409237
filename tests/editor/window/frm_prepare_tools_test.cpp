#include "editor/window/window_desk.h"

#include <QClipboard>
#include <QMimeData>

#include <gtest/gtest.h>

namespace quillmere::test {
namespace {

/// A desk whose forms note how they were opened.
struct ToolDesk : WindowDesk {
    std::vector<std::string> opened;

    ToolDesk()
    {
        for (const auto* form : {"frmArea", "frmTable", "frmOption", "frmLinks", "frmImage",
                 "frmTextFormat", "frmJustify", "frmClipart", "ChooseWbmpDialog", "frmPreview",
                 "frmUploadExtended", "frmPicKonvChoiceImage", "frmSystem"})
            window.registerForm(form, [this, form](const FormCall& call) {
                EXPECT_FALSE(session.gSurfaceActive);
                opened.push_back(std::string(form) + (call.NewElement ? " new" : " change"));
            });
        session.settings.WriteSetting("ShowOptionMessage", "No");
    }
    [[nodiscard]] std::vector<std::string> taken() { return std::exchange(opened, {}); }
    /// Marks `length` characters behind a text.
    void mark(const char* behind, int length)
    {
        caretBehind(behind);
        auto cursor = surface().textCursor();
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, length);
        surface().setTextCursor(cursor);
    }
    /// The surface's menu, as if it was asked for at the caret.
    [[nodiscard]] std::string menu()
    {
        emit surface().ShowContextMenu(QPoint(100, 100));
        for (const auto* name : {"mnuContext1", "mnuContext2"}) {
            auto& shown = control<QMenu>(name);
            if (!shown.isVisible()) continue;
            shown.hide();
            return name;
        }
        return "";
    }
    [[nodiscard]] bool allows(const char* entry) { return control<QAction>(entry).isEnabled(); }
};

TEST(Tools, SayWhyTheyCannotAct)
{
    WindowDesk desk;
    const std::vector<std::string> tools{"Area", "Table", "Option", "Link", "TextFormat", "Justify",
        "Image", "Undo", "Upload", "SeiteSave"};
    const auto told = [&desk](const std::string& tool) {
        desk.click(("lblButton" + tool).c_str());
        const auto all = desk.messages.taken();
        return all.size() == 1 ? all[0].substr(0, 8) : "something else";
    };
    for (const auto& tool : tools)
        EXPECT_EQ(told(tool), tool == "SeiteSave" ? "show 48" : "show 46") << tool;
    desk.openCards({"x"});
    for (const auto* tool :
        {"Area", "Table", "Option", "Link", "TextFormat", "Justify", "Upload", "Previour"})
        EXPECT_EQ(told(tool), "show 209") << tool << " has no form";
    EXPECT_FALSE(desk.window.docChanged());
    desk.click("btnScript");
    for (const auto* tool : {"Area", "Table", "Image", "Link", "Option", "TextFormat", "Justify"})
        EXPECT_EQ(told(tool), "show 47") << tool << " is the surface's";
    // its caption would take the colour of what stands on a picture
    EXPECT_EQ(desk.window.findChild<ToolPicture*>("picButtonMorvane"), nullptr);
}

TEST(Tools, NothingGoesIntoATable)
{
    ToolDesk desk;
    desk.openCards({"<table columns=\"1\"><tr><td>Zelle</td></tr></table>Ende"});
    desk.caretBehind("Zel");
    for (const auto* tool : {"Table", "Option", "Link"}) {
        desk.click((std::string("lblButton") + tool).c_str());
        EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"show 49"}) << tool;
    }
    desk.choose("mnuInsertImage");
    EXPECT_EQ(desk.messages.taken(), std::vector<std::string>{"show 49"});
    EXPECT_TRUE(desk.opened.empty());
    desk.caretBehind("Ende");
    desk.choose("mnuInsertImage2");
    EXPECT_EQ(desk.taken(), std::vector<std::string>{"ChooseWbmpDialog new"});
}

TEST(SurfaceMenu, FitsWhatIsMarked)
{
    ToolDesk desk;
    EXPECT_EQ(desk.menu(), "");
    desk.openCards({"vor<a href=\"#a\">Sprung</a>nach"});
    QApplication::clipboard()->clear();
    desk.caretBehind("vo");
    EXPECT_EQ(desk.menu(), "mnuContext1");
    EXPECT_FALSE(desk.allows("mnuContext1Copy"));
    EXPECT_FALSE(desk.allows("mnuContext1FormatText"));
    EXPECT_FALSE(desk.allows("mnuContext1Insert"));
    QApplication::clipboard()->setText("x");
    desk.mark("vo", 1);
    EXPECT_EQ(desk.menu(), "mnuContext1");
    EXPECT_TRUE(desk.allows("mnuContext1Copy"));
    EXPECT_TRUE(desk.allows("mnuContext1FormatText"));
    EXPECT_TRUE(desk.allows("mnuContext1Insert"));

    desk.caretBehind("Spr");
    EXPECT_EQ(desk.menu(), "mnuContext2");
    EXPECT_FALSE(desk.allows("mnuContext2FormatText"));
    desk.mark("Spr", 2);
    EXPECT_EQ(desk.menu(), "mnuContext2");
    EXPECT_TRUE(desk.allows("mnuContext2FormatText"));
    desk.choose("mnuContext2PrepareElement");
    EXPECT_EQ(desk.taken(), std::vector<std::string>{"frmLinks change"});
    desk.click("btnScript");
    EXPECT_EQ(desk.menu(), "");
}

TEST(SurfaceMenu, CopiesAnElementAsTextAndPastesItAsAnElement)
{
    ToolDesk desk;
    desk.openCards({"vor<a href=\"#a\">Sprung</a>nach", "leer"});
    desk.caretBehind("Spr");
    desk.choose("mnuContext2Copy");
    const auto link = QApplication::clipboard()->text();
    EXPECT_TRUE(link.startsWith("<a ") && link.endsWith("Sprung</a>")) << link.toStdString();

    desk.click("btnAreaNext");
    desk.caretBehind(">le");
    desk.choose("mnuContext1Insert");
    const auto pasted = "le" + link.toStdString() + "er";
    EXPECT_NE(desk.design(1).find(pasted), std::string::npos) << desk.design(1);
    EXPECT_TRUE(desk.window.docChanged());
    desk.type("!"); // the caret stands behind it
    EXPECT_NE(desk.surface().DocumentHTML().find("</a>!er"), std::string::npos);
    desk.click("lblButtonUndo");
    desk.click("lblButtonUndo");
    EXPECT_NE(desk.design(1).find(">leer<"), std::string::npos) << desk.design(1);
}

TEST(SurfaceMenu, APictureOfAnotherAreaComesWithItsEntry)
{
    ToolDesk desk;
    desk.openCards({"<img src=\"a.wbmp\" alt=\"bild\"/>", "leer"});
    const auto source = pictureSource(desk.design(0));
    QApplication::clipboard()->setText(
        QString::fromStdString("<img src=\"" + source + "\" alt=\"bild\">"));
    desk.click("btnAreaNext");
    desk.choose("mnuContext1Insert");
    const auto& taken = desk.session.document.deck[1].images;
    EXPECT_EQ(taken.at(taken.size() - 2).sourceFile, "a.wbmp");
    desk.choose("mnuSave");
    EXPECT_NE(desk.saved().find("a.wbmp", desk.saved().find("id=\"b\"")), std::string::npos)
        << desk.saved();
}

} // namespace
} // namespace quillmere::test
