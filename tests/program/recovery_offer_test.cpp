#include "program/recovery_offer.h"

#include "project/deck_files.h"
#include "project_dialogs/scripted_window.h"

#include <filesystem>
#include <sys/stat.h>

namespace quillmere {
namespace {

using namespace test;

struct Offers : testing::Test {
    DeckDesk program;
    ScratchFolder runs;

    /// What a run left that had one area of this text in a deck.
    void crash(const std::string& name, const std::string& text, int time)
    {
        const auto path = runs.path() + "quillmere-" + name + "/";
        const auto area = runs.put("quillmere-" + name + "/Wml0.htm", text);
        RecoveryNote note;
        note.deck = {program.folder.path(), name + ".wml"};
        note.time = time;
        note.isChanged = true;
        note.areas = {{{path, "Wml0.htm"}, 0, {}}};
        (void)runs.put("quillmere-" + name + "/Sicherung.txt", textOfNote(note));
        ::chmod(path.c_str(), 0700);
    }
    bool offer(std::deque<bool> answers)
    {
        program.messages.answers = std::move(answers);
        const bool opened = offerCrashedRuns(program.session, runs.path());
        EXPECT_TRUE(program.messages.answers.empty()) << "not all was asked";
        return opened;
    }
};

constexpr const char* kArea
    = "<!--card id=\"a\" title=\"A\"-->\r\n\r\n<HTML><BODY><p>Hallo</p></BODY></HTML>";

TEST_F(Offers, OpenTheNewestThatIsWantedAndKeepTheOthers)
{
    crash("erster", kArea, 1000);
    crash("zweite", kArea, 3000);
    crash("dritte", kArea, 2000);
    EXPECT_TRUE(offer({false, false, true})) << "keep the newest, open the next one";
    const auto& log = program.messages.log;
    EXPECT_TRUE(log.at(0).starts_with("ask 201: ")) << log.at(0);
    EXPECT_NE(log.at(0).find("zweite.wml|"), std::string::npos);
    EXPECT_TRUE(log.at(1).starts_with("ask 204: ")) << log.at(1);
    EXPECT_NE(log.at(2).find("dritte.wml|"), std::string::npos);
    EXPECT_TRUE(program.window.isChanged);
    EXPECT_EQ(program.window.shown, 1);
    EXPECT_EQ(program.deck().front().deckFile, "dritte.wml");
    EXPECT_NE(program.area(0).find("Hallo"), std::string::npos);
    EXPECT_FALSE(runs.has("quillmere-dritte"));
    EXPECT_TRUE(runs.has("quillmere-zweite"));
    EXPECT_TRUE(std::filesystem::exists(program.workFiles.directory() + "Sicherung.txt"));

    EXPECT_FALSE(offer({false, true, false, true}));
    EXPECT_FALSE(runs.has("quillmere-zweite"));
    EXPECT_FALSE(runs.has("quillmere-erster"));
    EXPECT_FALSE(offer({}));
}

TEST_F(Offers, SayWhatCannotBeOpenedAndKeepIt)
{
    (void)program.folder.put("index.wml", deckOf("alt"));
    OpenDocument(program.session, "index.wml", program.folder.path());
    crash("langer", std::string(40'000, 'x'), 1000);
    EXPECT_FALSE(offer({true}));
    EXPECT_NE(program.area(0).find("alt"), std::string::npos);
    ASSERT_EQ(program.messages.log.size(), 2U);
    EXPECT_TRUE(program.messages.log[1].starts_with("failure: "));
    EXPECT_TRUE(runs.has("quillmere-langer"));
}

} // namespace
} // namespace quillmere
