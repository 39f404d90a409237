#include "forms/help_window.h"

#include "document/platform/files.h"
#include "gui/window_session.h"

#include <QScrollBar>
#include <QTest>

#include <set>

namespace quillmere {
namespace {

using namespace test;

const std::string kHelp = QUILLMERE_SOURCE_DIR "/data/Help/Quillmere_Help.html";

struct Help : testing::Test {
    WindowSession program;
    QWidget parent;

    HelpBrowser* open(const std::string& file, const char* form)
    {
        program.settings.WriteSetting("HelpFile", file);
        if (!HelpWindow::open(program.session, form, &parent)) return nullptr;
        return parent.findChild<HelpBrowser*>();
    }
};

TEST_F(Help, ReachesThePageOfAWindowAndGoesBackAndForth)
{
    auto* browser = open(kHelp, "frmTable");
    ASSERT_NE(browser, nullptr);
    QApplication::processEvents();
    const int place = browser->verticalScrollBar()->value();
    EXPECT_GT(place, 0);
    EXPECT_EQ(open(kHelp, "frmPrepare"), browser) << "one window, two pages";
    EXPECT_NE(browser->verticalScrollBar()->value(), place);
    const auto buttons = parent.findChildren<QToolButton*>();
    ASSERT_EQ(buttons.size(), 3);
    buttons[1]->click();
    EXPECT_EQ(browser->source().fragment(), "frmTable");
    buttons[0]->click();
    EXPECT_EQ(browser->source().fragment(), "inhalt");
    QTest::keyClick(browser->window(), Qt::Key_Escape);
    EXPECT_FALSE(browser->window()->isVisible());
}

TEST_F(Help, ShowsNothingFromElsewhere)
{
    EXPECT_EQ(open("", "frmTable"), nullptr);
    EXPECT_EQ(open("/nowhere/help.html", "frmTable"), nullptr);
    (void)program.folder.put("secret.html", "secret");
    const auto page = program.folder.put("Help/page.html", "<p>page</p>");
    (void)program.folder.put("Help/more/other.html", "<p>other</p>");
    auto* browser = open(page, "");
    ASSERT_NE(browser, nullptr);
    for (const auto* address :
        {"http://www.morvane.example/", "../secret.html", "/etc/passwd", "/dev/zero"}) {
        browser->setSource(QUrl(address));
        EXPECT_EQ(browser->toPlainText(), "page") << address;
    }
    browser->setSource(QUrl("more/other.html"));
    EXPECT_EQ(browser->toPlainText(), "other");
}

/// The names after `begin` in a text, up to `end`.
std::set<std::string> namesIn(const std::string& text, const std::string& begin, char end)
{
    std::set<std::string> names;
    for (auto at = text.find(begin); at != text.npos; at = text.find(begin, at)) {
        at += begin.size();
        names.insert(text.substr(at, text.find(end, at) - at));
    }
    return names;
}

TEST(ShippedHelp, HasAPageForEachWindowAndNoLinkToNowhere)
{
    const auto text = readFile(kHelp);
    const auto places = namesIn(text, "<a name=\"", '"');
    for (const auto& link : namesIn(text, "<a href=\"#", '"'))
        EXPECT_TRUE(places.contains(link)) << link;
    for (const auto* form : {"frmPrepare", "txtScript", "frmAssistent", "frmAskProjektDir",
             "frmDeckOpen", "frmOpenFromProjektDir", "frmArea", "frmTable", "frmOption", "frmImage",
             "frmLinks", "frmTextFormat", "frmJustify", "frmDeckChanges", "frmMessage", "frmInput",
             "frmAboutQuillmere"})
        EXPECT_TRUE(places.contains(form)) << form;
}

} // namespace
} // namespace quillmere
