// The whole program, used from outside as a person does: by keys and by the mouse.

#include "end_to_end/desktop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

namespace quillmere {
namespace {

using test::Desktop;

/// As the program itself writes it, so that opening it costs nothing and asks nothing.
constexpr const char* kDeck = "<?xml version=\"1.0\"?>\r\n"
                              "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
                              "\"http://www.wapforum.org/DTD/wml_1.1.xml\">\r\n"
                              "<wml>\r\n"
                              "<card id=\"a\" title=\"Erste\">\r\n"
                              "<p>Guten Tag</p>\r\n"
                              "</card>\r\n"
                              "</wml>\r\n";

struct WholeProgram : testing::Test {
    Desktop desktop;
    std::string deck = desktop.folder.put("meine decks/index.wml", kDeck);

    static std::string changed()
    {
        std::string text = kDeck;
        return text.insert(text.find("Guten"), "neu ");
    }
    std::string saved() const { return desktop.folder.get("meine decks/index.wml"); }
    pid_t open() { return desktop.start({QUILLMERE, deck}); }
    static void rest() { std::this_thread::sleep_for(std::chrono::milliseconds(500)); }
    /// The main window with the deck in it, in front.
    std::string mainWindow() const
    {
        auto window = desktop.window("index.wml.* MORVANE Quillmere");
        desktop.focus(window);
        rest(); // the title is there a little ahead of the area
        return window;
    }
    void typeAt(const char* key, const std::string& text)
    {
        press(key);
        (void)desktop.tell("type --delay 20 '" + text + "'");
        desktop.waitUntil(
            "mark of a change", [this] { return desktop.windows("[*].*Quillmere") == 1; });
    }
    void type() { typeAt("ctrl+Home", "neu "); }
    void press(const char* key) const { (void)desktop.tell(std::string("key ") + key); }
    /// Saves the deck, which is then this, and ends the program.
    void saveAndEnd(pid_t program, const std::string& wanted)
    {
        const auto before = saved();
        press("ctrl+s");
        desktop.waitUntil("saved deck", [&] { return saved() != before; });
        EXPECT_EQ(saved(), wanted);
        press("Escape");
        EXPECT_EQ(desktop.waitForEnd(program), 0);
    }
    /// Opens the deck, types, saves it and ends the program.
    void workOnTheDeck()
    {
        const auto program = open();
        (void)mainWindow();
        type();
        EXPECT_EQ(saved(), kDeck);
        saveAndEnd(program, changed());
    }
    /// Opens the deck, types, and kills the program once that was stored by itself.
    void crash()
    {
        const auto program = open();
        (void)mainWindow();
        type();
        std::this_thread::sleep_for(std::chrono::milliseconds(1500));
        desktop.kill(program);
    }
    /// Starts the program anew and takes what it offers.
    pid_t recover()
    {
        const auto program = desktop.start({QUILLMERE});
        desktop.waitUntil("question over the window",
            [&] { return desktop.windows("^MORVANE Quillmere$") == 2; });
        rest();
        press("Return");
        (void)mainWindow();
        return program;
    }
    void setting(const std::string& line) const
    {
        (void)desktop.folder.put("config/MORVANE/Quillmere.conf", "[General]\n" + line + "\n");
    }
};

TEST_F(WholeProgram, SavesWhatWasTypedAndNothingElse)
{
    workOnTheDeck();
    EXPECT_TRUE(std::filesystem::is_empty(desktop.folder.path() + "tmp")) << "work files are left";
}

TEST_F(WholeProgram, ASecondStartBringsTheFirstToTheFrontAndLeaves)
{
    (void)open();
    const auto window = mainWindow();
    const auto settings = desktop.folder.get("config/MORVANE/Quillmere.conf");
    (void)desktop.tell("windowminimize " + window);
    desktop.waitUntil(
        "minimized window", [&] { return desktop.windows("MORVANE Quillmere") == 0; });
    EXPECT_EQ(desktop.waitForEnd(desktop.start({QUILLMERE, "/another/deck.wml"})), 0);
    EXPECT_EQ(desktop.window("MORVANE Quillmere"), window);
    EXPECT_EQ(desktop.folder.get("config/MORVANE/Quillmere.conf"), settings);
}

TEST_F(WholeProgram, ASecondStartDuringTheSplashDoesNotDisturbTheFirst)
{
    const auto program = open();
    desktop.waitUntil("splash",
        [this] { return !desktop.tell("search --onlyvisible --class quillmere").empty(); });
    EXPECT_EQ(desktop.waitForEnd(open()), 0);
    (void)mainWindow(); // with the deck in it
    press("Escape");
    EXPECT_EQ(desktop.waitForEnd(program), 0);
}

TEST_F(WholeProgram, EscapeAsksAboutChangesAndTakesBothAnswers)
{
    struct Answer {
        const char* key;
        std::string deck;
    };
    for (const auto& answer : {Answer{"n", kDeck}, Answer{"j", changed()}}) {
        const auto program = open();
        const auto window = mainWindow();
        type();
        press("Escape");
        desktop.waitUntil("question", [&] {
            const auto focused = desktop.tell("getwindowfocus");
            return !focused.empty() && focused != window + "\n";
        });
        press(answer.key);
        EXPECT_EQ(desktop.waitForEnd(program), 0);
        EXPECT_EQ(saved(), answer.deck);
    }
}

TEST_F(WholeProgram, IsMovedByItsHandle)
{
    (void)open();
    const auto window = mainWindow();
    const auto place = [&] { return desktop.tell("getwindowgeometry --shell " + window); };
    const auto before = place();
    (void)desktop.tell("mousemove --window " + window + " 480 30");
    (void)desktop.tell("mousedown 1");
    rest(); // until the window manager has the pointer
    for (int i = 0; i < 5; ++i)
        (void)desktop.tell("mousemove_relative -- -12 8");
    rest();
    (void)desktop.tell("mouseup 1");
    const auto coordinate = [](const std::string& text, const char* name) {
        return std::stoi(text.substr(text.find(name) + 2));
    };
    desktop.waitUntil("move", [&] { return place() != before; });
    rest();
    EXPECT_NEAR(coordinate(place(), "X="), coordinate(before, "X=") - 60, 14);
    EXPECT_NEAR(coordinate(place(), "Y="), coordinate(before, "Y=") + 40, 10);
}

TEST_F(WholeProgram, WorksWithoutAStoreOfSettings)
{
    std::filesystem::remove(desktop.folder.path() + "config");
    (void)desktop.folder.put("config", "a file where the folder should be");
    workOnTheDeck();
}

TEST_F(WholeProgram, WorksWithSkinFilesThatAreDamaged)
{
    for (const char* name : {"Adjust.ini", "AdjuPrev.ini", "AdjPnt.ini", "UserDef.ini",
             "ResWords.res", "ResForms1.res", "ResForms2.res", "splash.bmp"})
        (void)desktop.folder.put(std::string("Skins/") + name, "damaged");
    setting("Skins=" + desktop.folder.path() + "Skins/");
    workOnTheDeck();
}

/// The deck of the examples with all that the default would drop.
TEST_F(WholeProgram, LosesNothingOfADeckWithStandardOutput)
{
    const auto path = std::string(QUILLMERE_SOURCE_DIR "/examples/pension/index.wml");
    std::ifstream file(path, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    const std::string link = "Weiter</a>";
    auto wanted = text;
    wanted.insert(text.find(link) + link.size(), " jetzt");
    for (const bool isSetting : {true, false}) {
        setting(isSetting ? "StandardOutput=Yes" : "StandardOutput=No");
        (void)desktop.folder.put("meine decks/index.wml", text);
        const auto program = open();
        if (!isSetting) { // the form of what saving would cost
            desktop.focus(desktop.window("Was das Speichern"));
            rest();
            press("Return"); // this deck with standard output
        }
        (void)mainWindow();
        typeAt("ctrl+End", " jetzt");
        EXPECT_EQ(saved(), text);
        saveAndEnd(program, wanted);
    }
}

TEST_F(WholeProgram, SavesWithoutADirectoryOfWorkFiles)
{
    const auto program = open();
    (void)mainWindow();
    std::filesystem::remove_all(desktop.folder.path() + "tmp");
    type();
    desktop.waitUntil(
        "message over the window", [&] { return desktop.windows("^MORVANE Quillmere$") == 1; });
    rest();
    press("Return");
    (void)mainWindow();
    saveAndEnd(program, changed()); // nothing is told a second time
}

TEST_F(WholeProgram, OffersWhatAKilledProgramHadNotSaved)
{
    crash();
    EXPECT_EQ(saved(), kDeck);
    (void)desktop.folder.put("meine decks/index.wml", "<wml>fremd</wml>");

    const auto next = recover();
    press("ctrl+s");
    desktop.waitUntil(
        "question of the other text", [&] { return desktop.windows("^MORVANE Quillmere$") == 1; });
    rest();
    EXPECT_EQ(saved(), "<wml>fremd</wml>");
    press("Return");
    desktop.waitUntil("saved deck", [this] { return saved() == changed(); });
    (void)mainWindow();
    press("Escape");
    EXPECT_EQ(desktop.waitForEnd(next), 0);
}

TEST_F(WholeProgram, MendsARecoveredDeckInTheOpenAndNothingElse)
{
    const std::string ahead = "<wml>\n<card  id='a'>\n<p  >", words = "Guten <b>Tag";
    const std::string behind = "</p></card>\n</wml>";
    setting("StandardOutput=Yes");
    (void)desktop.folder.put("meine decks/index.wml", ahead + words + behind);
    crash();
    const auto program = recover();
    EXPECT_EQ(saved(), ahead + words + behind);
    press("ctrl+s");
    desktop.focus(desktop.window("Was das Speichern"));
    rest();
    press("Return"); // the mends are wanted
    desktop.waitUntil("saved deck", [&] { return saved() != ahead + words + behind; });
    EXPECT_EQ(saved(), ahead + "neu " + words + "</b>" + behind);
    (void)mainWindow();
    press("Escape");
    EXPECT_EQ(desktop.waitForEnd(program), 0);
}

} // namespace
} // namespace quillmere
