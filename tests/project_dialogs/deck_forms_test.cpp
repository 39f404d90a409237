#include "project/frm_ask_projekt_dir.h"
#include "project/frm_deck_open.h"
#include "project/frm_open_from_projekt_dir.h"

#include "project/deck_files.h"
#include "project_dialogs/scripted_window.h"

#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace quillmere {
namespace {

using test::DeckDesk;
using test::deckOf;
using Log = std::vector<std::string>;

/// A form on a desk, used by keys and clicks on its controls by their names.
template <class FormClass> struct Shown {
    FormClass form;

    explicit Shown(DeckDesk& desk)
        : form(desk.session)
    {
        form.show();
    }
    template <class Control> Control& control(const char* name)
    {
        return *form.template findChild<Control*>(QLatin1String(name));
    }
    void click(const char* name) { QTest::mouseClick(&control<QPushButton>(name), Qt::LeftButton); }
    void fill(const char* name, const QString& text)
    {
        auto& field = control<QLineEdit>(name);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        field.insert(text); // the keys of QTest have no umlauts
    }
    std::string text(const char* name) { return control<QLineEdit>(name).text().toStdString(); }
    bool isEnabled(const char* name) { return control<QWidget>(name).isEnabled(); }
    bool isDone() { return form.result() == QDialog::Accepted && form.isHidden(); }
};

QString qt(const std::string& text)
{
    return QString::fromStdString(text);
}

TEST(frmAskProjektDir, ProposesAPlaceAndLetsOnlyGoodNamesPass)
{
    DeckDesk desk;
    const auto folder = desk.folder.path();
    desk.settings.WriteSetting("LastPath1", folder);
    Shown<frmAskProjektDir> shown(desk);
    EXPECT_EQ(shown.text("txtPath") + "/", folder);
    EXPECT_EQ(shown.text("txtFileName"), "index.wml");
    EXPECT_TRUE(shown.isEnabled("btnOk"));
    struct Row {
        const char* path;
        const char* name;
        bool isGood;
    };
    for (const auto& row : {Row{"/a/b", "seite", true}, {"/a", "a.b.c", false}, {"a/b", "x", false},
             {"/a//b", "x", false}, {"/a", "", false}, {"", "x", false},
             {"/ä.x/y", "Müller.WML", true}, {"/a", "x&y", false}}) {
        shown.fill("txtPath", QString::fromUtf8(row.path));
        shown.fill("txtFileName", QString::fromUtf8(row.name));
        EXPECT_EQ(shown.isEnabled("btnOk"), row.isGood) << row.path << " " << row.name;
    }
    EXPECT_FALSE(shown.control<QLabel>("lblHint").text().isEmpty());
    desk.folder.put("index.wml", "");
    EXPECT_EQ(Shown<frmAskProjektDir>(desk).text("txtFileName"), "");
}

TEST(frmAskProjektDir, MakesTheDirectoryAndOffersTheStartPage)
{
    DeckDesk desk;
    const auto folder = desk.folder.path() + "neu/tief";
    Shown<frmAskProjektDir> shown(desk);
    desk.dialogs.paths = {qt(folder)};
    shown.click("btnFolder");
    EXPECT_EQ(shown.text("txtPath"), folder);
    shown.fill("txtFileName", QStringLiteral("seite"));

    desk.messages.answers = {false};
    shown.click("btnOk");
    EXPECT_EQ(desk.messages.taken(), Log{"ask 128: " + folder});
    EXPECT_FALSE(desk.folder.has("neu"));
    EXPECT_TRUE(shown.form.isVisible() && desk.deck().empty());

    desk.messages.answers = {true, true};
    QTest::keyClick(&shown.form, Qt::Key_Return);
    EXPECT_EQ(desk.messages.taken(), (Log{"ask 128: " + folder, "ask 9"}));
    EXPECT_TRUE(shown.isDone());
    EXPECT_EQ(desk.deck().front().deckDir + desk.deck().front().deckFile, folder + "/index.wml");
    EXPECT_EQ(desk.settings.ReadSetting("LastPath1"), folder);
}

TEST(frmOpenFromProjektDir, OpensWhatIsSelected)
{
    DeckDesk desk;
    const auto folder = desk.folder.path() + "p/";
    for (const char* name : {"index.wml", "SEITE.WML", "kaputt.wml", "bild.wbmp"})
        desk.folder.put(std::string("p/") + name, deckOf(name));
    OpenDocument(desk.session, "index.wml", folder);
    Shown<frmOpenFromProjektDir> shown(desk);
    auto& list = shown.control<QListWidget>("lstFiles");
    ASSERT_EQ(list.count(), 3);
    EXPECT_FALSE(shown.isEnabled("btnOk"));
    const auto select = [&](const char* name) {
        auto* item = list.findItems(QLatin1String(name), Qt::MatchExactly).at(0);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
    };
    select("kaputt");
    EXPECT_TRUE(shown.isEnabled("btnOk"));
    std::filesystem::remove(folder + "kaputt.wml");
    shown.click("btnOk");
    EXPECT_TRUE(desk.messages.taken().at(0).starts_with("failure: "));
    EXPECT_TRUE(shown.form.isVisible());
    EXPECT_EQ(desk.deck().front().deckFile, "index.wml");
    select("SEITE");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_TRUE(shown.isDone());
    EXPECT_EQ(desk.deck().front().deckFile, "SEITE.WML");
    EXPECT_NE(desk.area(0).find("SEITE.WML"), std::string::npos);
}

TEST(frmDeckOpen, OpensADeckAndMakesAnother)
{
    DeckDesk desk;
    const auto folder = desk.folder.path();
    desk.settings.WriteSetting("LastPath1", folder + "a");
    desk.folder.put("a/eins.wml", deckOf("eins"));
    desk.folder.put("b/zwei.wml", deckOf("zwei"));
    for (const auto& root : {std::string("/proc/"), folder + "b/", std::string("/")})
        desk.drives.kinds.emplace_back(root, DriveKind::CdRom);
    {
        Shown<frmDeckOpen> shown(desk);
        auto& drive = shown.control<QComboBox>("objDrive");
        EXPECT_EQ(drive.currentText(), "/");
        shown.form.ShowTab(QStringLiteral("open"));
        EXPECT_FALSE(shown.isEnabled("btnOpen") || shown.isEnabled("btnSaveCurProjectAs"));
        auto& folders = shown.control<QListWidget>("objDirectory");
        folders.setFocus();
        folders.setCurrentRow(0);
        QTest::keyClick(&folders, Qt::Key_Return); // one up
        folders.setCurrentItem(folders.findItems(QStringLiteral("b"), Qt::MatchExactly).at(0));
        QTest::keyClick(&folders, Qt::Key_Return);
        EXPECT_EQ(drive.currentText().toStdString(), folder + "b/");
        auto& files = shown.control<QListWidget>("objFileList");
        files.setCurrentRow(0);
        EXPECT_EQ(shown.text("txtFileName") + shown.text("txtSaveAsFileName"), "zwei.wmlzwei.wml");
        shown.click("btnOpen");
        EXPECT_TRUE(shown.isDone());
        EXPECT_EQ(desk.deck().front().deckDir, folder + "b/");
    }
    Shown<frmDeckOpen> shown(desk);
    shown.form.ShowTab(QStringLiteral("new"));
    shown.fill("txtFileName", QStringLiteral("a.b.c"));
    QTest::keyClick(&shown.control<QLineEdit>("txtFileName"), Qt::Key_Return);
    EXPECT_EQ(desk.messages.taken(), Log{"show 8"});
    shown.fill("txtFileName", QStringLiteral("seite.txt"));
    QTest::keyClick(&shown.control<QLineEdit>("txtFileName"), Qt::Key_Return);
    EXPECT_TRUE(shown.isDone());
    EXPECT_EQ(desk.deck().front().deckFile, "seite.wml");
}

} // namespace
} // namespace quillmere
