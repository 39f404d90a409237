#include "program/recovery.h"

#include "cli/core_session.h"
#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/images.h"
#include "document/platform/disk_work_files.h"
#include "document/text/failure.h"
#include "support/scratch_folder.h"
#include "support/small_deck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <memory>
#include <random>
#include <regex>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <tuple>
#include <unistd.h>

namespace quillmere {
namespace {

using test::ScratchFolder;

constexpr const char* kDeck
    = "<?xml version=\"1.0\"?>\r\n"
      "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
      "\"http://www.wapforum.org/DTD/wml_1.1.xml\">\r\n"
      "<wml>\r\n"
      "<card id=\"a\" title=\"Erste\">\r\n<p>Stand 0! <b>fett</b></p>\r\n</card>\r\n"
      "<card id=\"b\" title=\"Zweite\">\r\n<p>Stand 0! <img src=\"x.wbmp\" "
      "alt=\"x\"/></p>\r\n</card>\r\n"
      "</wml>\r\n";

/// A program with work files on the disk, and what it keeps of a deck.
struct Program {
    test::SmallCopies copies;
    cli::CoreSession core;
    DiskWorkFiles files;
    DocumentSession session;

    explicit Program(const std::string& parent, bool standardOutput = false)
        : core(standardOutput, &copies)
        , files(parent)
        , session{
              files, copies, core.prompter, core.settings, core.words, OutputRules(standardOutput)}
    {
    }
    std::string area(std::size_t index) { return ReadDesignText(session, index); }
    void replace(std::size_t index, const std::string& before, const std::string& after)
    {
        auto text = area(index);
        WriteDesignText(session, index, text.replace(text.find(before), before.size(), after));
    }
    std::string written()
    {
        WriteDeck(session);
        const auto& first = session.deck.front();
        return files.read(first.wmlDir + first.wmlFile);
    }
};

/// Ends the program but leaves its directory, as a crash does. Returns that.
std::string crash(std::unique_ptr<Program> program)
{
    auto directory = program->files.directory().substr(0, program->files.directory().size() - 1);
    std::filesystem::rename(directory, directory + "-hidden");
    program.reset();
    std::filesystem::rename(directory + "-hidden", directory);
    return directory;
}

std::unique_ptr<Program> programWithDeck(
    const std::string& parent, const std::string& deckDir, bool standardOutput = false)
{
    auto program = std::make_unique<Program>(parent, standardOutput);
    LoadDeck(program->session, {"index.wml", deckDir, {}, {}});
    writeRecoveryNote(program->session, {false});
    return program;
}

TEST(RecoveryNote, ComesBackAsItWasWritten)
{
    RecoveryNote note;
    note.deck = {"/home/j\xC3\xBCrgen/a\tb\\n\n/", "in\rdex.wml"};
    note.wml = {"/tmp/q/", "Wml0.wml"};
    note.time = 1'763'740'000;
    note.isChanged = true;
    note.seen = SeenDeckFile{true, 5'000'000'000, -1, 0xFFFFFFFFFFFFFFFFU};
    note.source = {"/tmp/q/", "Source0.txt"};
    note.pristine = {"/tmp/q/", "Wml1.wml"};
    ImageEntry image;
    image.displayDir = "/tmp/q/";
    image.displayFile = "Wml0.bmp";
    image.sourceDir = "/decks/";
    image.sourceFile = "img/a.wbmp";
    image.alignment = "top";
    image.pictureHeightPx = 7;
    image.widthPx = -1;
    image.hasLayout = true;
    note.areas = {{{"/tmp/q/", "Wml0.htm"}, 0xFFFFFFFFFFFFFFFFU, {image, {}}}, {}};
    const auto text = textOfNote(note);
    const auto read = noteFromText(text);
    ASSERT_TRUE(read);
    EXPECT_EQ(textOfNote(*read), text);
    EXPECT_EQ(read->deck, note.deck);
    EXPECT_EQ(read->seen, note.seen);
    for (std::size_t length = 0; length + 1 < text.size(); ++length)
        EXPECT_FALSE(noteFromText(std::string_view(text).substr(0, length))) << length;
    EXPECT_FALSE(noteFromText("another file\nend\n"));
}

TEST(Recovery, OffersCrashedRunsWithChangesOnlyAndOpensThem)
{
    const ScratchFolder folder;
    const auto deck = folder.put("deck/index.wml", kDeck);
    auto program = programWithDeck(folder.path(), folder.path() + "deck/");
    EXPECT_TRUE(takeCrashedRuns(folder.path()).empty()) << "it still runs";
    EXPECT_TRUE(std::filesystem::exists(program->files.directory()));
    const auto unchanged = crash(std::move(program));
    EXPECT_TRUE(takeCrashedRuns(folder.path()).empty()) << "nothing was changed";
    EXPECT_FALSE(std::filesystem::exists(unchanged));

    program = programWithDeck(folder.path(), folder.path() + "deck/");
    auto text = program->area(1);
    text.insert(text.find("Stand"), "neu ");
    WriteDesignText(program->session, 1, text); // and no note of it yet
    const auto left = crash(std::move(program));
    const auto runs = takeCrashedRuns(folder.path());
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].note.deck.path(), deck);
    EXPECT_TRUE(takeCrashedRuns(folder.path()).empty()) << "one start has them already";

    Program next(folder.path());
    openCrashedRun(next.session, runs[0]);
    EXPECT_NE(next.area(1).find("neu Stand"), std::string::npos);
    EXPECT_EQ(next.session.deck.at(1).images.at(1).sourceFile, "x.wbmp");
    EXPECT_EQ(folder.get("deck/index.wml"), kDeck);
    EXPECT_TRUE(std::filesystem::exists(left));
    discardCrashedRun(runs[0]);
    EXPECT_FALSE(std::filesystem::exists(left));
}

/// What is compared is the file as it was opened, not what was made of it.
TEST(Recovery, WithoutLossGoesOnWhereTheRunWas)
{
    const std::string file = "<wml>\n<card id='a'><p>eins <b>zwei</p></card>\n"
                             "<card id='b'><p  >drei<timer value='1'/> vier "
                             "<img alt=\"\" src='x.wbmp' width='9'/></p></card></wml>\n";
    const auto with = [&](const std::string& before, const std::string& after) {
        auto text = file;
        return text.replace(text.find(before), before.size(), after);
    };
    const ScratchFolder folder;
    (void)folder.put("deck/index.wml", file);
    auto crashed = programWithDeck(folder.path(), folder.path() + "deck/", true);
    crashed->replace(1, "drei", "3");
    crashed->replace(1, "width: 9px", "width: 8px");
    AddArea(crashed->session, false);
    RemoveArea(crashed->session, 0, false);
    const auto wanted = crashed->written();
    writeRecoveryNote(crashed->session, {true});
    const auto left = crash(std::move(crashed));
    const auto runs = takeCrashedRuns(folder.path());
    ASSERT_EQ(runs.size(), 1U);

    Program next(folder.path());
    openCrashedRun(next.session, runs[0]);
    discardCrashedRun(runs[0]);
    EXPECT_TRUE(next.session.output.losesNothing());
    EXPECT_EQ(standardMends(next.session).size(), 1U);
    EXPECT_EQ(next.written(), wanted);
    const auto& image = next.session.deck.at(0).images.at(1);
    EXPECT_NE(next.area(0).find(image.displayDir + image.displayFile), std::string::npos);
    EXPECT_EQ(next.files.read(image.displayDir + image.displayFile), "BM");
    EXPECT_EQ(next.area(0).find(left), std::string::npos);

    auto again = programWithDeck(folder.path(), folder.path() + "deck/", true);
    again->replace(1, "drei", "3");
    writeRecoveryNote(again->session, {true});
    (void)crash(std::move(again));
    openCrashedRun(next.session, takeCrashedRuns(folder.path()).at(0));
    EXPECT_EQ(next.written(), with("drei", "3").replace(file.find("</p>"), 0, "</b>"));
    next.replace(1, "3", "drei");
    EXPECT_EQ(next.written(), file) << "the fault as well";
}

TEST(Recovery, LeavesAloneWhatIsNoRunOfThisPerson)
{
    const ScratchFolder folder;
    (void)folder.put("quillmere-open01/Sicherung.txt", "anyone may write here");
    ::chmod((folder.path() + "quillmere-open01").c_str(), 0755);
    (void)folder.put("quillmere-test-abcdef/x", "");
    std::filesystem::create_directory_symlink("/tmp", folder.path() + "quillmere-link01");
    (void)folder.put("quillmere-young1/Wml0.htm", "");
    (void)folder.put("quillmere-broken/Sicherung.txt", "Quillmere-Sicherung 1\nareas");
    for (const auto* name : {"quillmere-young1", "quillmere-broken"})
        ::chmod((folder.path() + name).c_str(), 0700);
    EXPECT_TRUE(takeCrashedRuns(folder.path()).empty());
    for (const auto* name : {"open01/Sicherung.txt", "test-abcdef/x", "link01", "young1/Wml0.htm"})
        EXPECT_TRUE(folder.has(std::string("quillmere-") + name)) << name;
    EXPECT_FALSE(folder.has("quillmere-broken"));
    EXPECT_TRUE(takeCrashedRuns("/nowhere/").empty());
}

TEST(Recovery, KeepsASourceAndTellsWhatBecameOfTheDecksFile)
{
    const ScratchFolder folder;
    // without a text the file is removed
    const std::tuple<const char*, std::string, DeckFileChange> rows[] = {
        {"as it was", kDeck, DeckFileChange::None},
        {"the run's own save", "<wml>gespeichert</wml>", DeckFileChange::None},
        {"another program's", "<wml>fremd</wml>", DeckFileChange::Altered},
        {"removed", "", DeckFileChange::Removed},
    };
    for (const auto& [name, file, change] : rows) {
        SCOPED_TRACE(name);
        const auto deck = folder.put("deck/index.wml", kDeck);
        auto program = programWithDeck(folder.path(), folder.path() + "deck/");
        auto& files = program->files;
        const auto source = files.directory() + files.createFile("Source", ".txt");
        files.write(source, "<wml>halb ge");
        const auto& first = program->session.deck.front();
        files.write(first.wmlDir + first.wmlFile, "<wml>gespeichert</wml>");
        DeckFileWatch watch;
        watch.remember(deck);
        writeRecoveryNote(program->session, {true, watch.seen(), source});
        if (file.empty())
            std::filesystem::remove(deck);
        else
            (void)folder.put("deck/index.wml", file);
        (void)crash(std::move(program));
        const auto runs = takeCrashedRuns(folder.path());
        ASSERT_EQ(runs.size(), 1U);
        EXPECT_EQ(sourceOf(runs[0]), "<wml>halb ge");
        EXPECT_EQ(deckFileChange(runs[0]), change);
        discardCrashedRun(runs[0]);
    }
}

/// Lets the program work for a while and kills it at a moment that nobody chose.
void killAtWork(const std::string& parent, const std::string& deck, int delayUs, bool isStandard)
{
    int channel[2];
    ASSERT_EQ(::pipe(channel), 0);
    const auto child = ::fork();
    if (child == 0) {
        ::dup2(channel[1], STDOUT_FILENO);
        ::execl(QUILLMERE_RECOVERY_VICTIM, "victim", parent.c_str(), deck.c_str(),
            isStandard ? "standard" : nullptr, nullptr);
        ::_exit(127);
    }
    ::close(channel[1]);
    char begun = 0;
    ASSERT_EQ(::read(channel[0], &begun, 1), 1) << "it ended by itself";
    std::this_thread::sleep_for(std::chrono::microseconds(delayUs));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(channel[0]);
    ASSERT_TRUE(WIFSIGNALED(status));
}

std::vector<int> numbersIn(const std::string& text)
{
    static const std::regex expression("Stand ([0-9]+)!");
    std::vector<int> numbers;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end;
         ++match)
        numbers.push_back(std::stoi((*match)[1]));
    return numbers;
}

std::string withoutNumbers(const std::string& text)
{
    return std::regex_replace(text, std::regex("Stand [0-9]+!"), "Stand N!");
}

TEST(Recovery, LosesNothingHoweverOftenTheProgramIsKilled)
{
    const ScratchFolder folder;
    const auto deck = folder.put("deck/index.wml", kDeck);
    const auto runsIn = folder.path() + "runs/";
    std::filesystem::create_directory(runsIn);
    std::string whole;
    {
        Program program(runsIn);
        LoadDeck(program.session, {"index.wml", folder.path() + "deck/", {}, {}});
        whole = withoutNumbers(program.written());
        (void)folder.put("deck/index.wml", program.written());
    }
    std::mt19937 random(20260); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same each time
    int longestUs = 50'000; // grows where the machine is too slow to save anything in that time
    int saved = 0;
    int recovered = 0;
    for (int round = 0; round < 220; ++round) {
        SCOPED_TRACE(round);
        std::uniform_int_distribution<int> delayUs(0, longestUs);
        ASSERT_NO_FATAL_FAILURE(killAtWork(runsIn, deck, delayUs(random), round % 2 != 0));
        const auto text = folder.get("deck/index.wml");
        ASSERT_EQ(withoutNumbers(text), whole);
        const auto numbers = numbersIn(text);
        ASSERT_EQ(numbers.size(), 2U);
        ASSERT_EQ(numbers[0], numbers[1]) << "half of the old and half of the new deck";
        ASSERT_GE(numbers[0], saved);
        longestUs = numbers[0] == saved ? longestUs * 5 / 4 : std::max(50'000, longestUs * 4 / 5);
        saved = numbers[0];
        for (const auto& run : takeCrashedRuns(runsIn)) {
            Program program(runsIn);
            ASSERT_NO_THROW(openCrashedRun(program.session, run));
            ASSERT_EQ(areaCount(program.session.deck), 2U);
            if (run.note.losesNothing) {
                ASSERT_EQ(withoutNumbers(program.written()), whole);
            }
            const int first = numbersIn(program.area(0)).at(0);
            const int second = numbersIn(program.area(1)).at(0);
            ASSERT_TRUE(first == second || first == second + 1) << first << ' ' << second;
            ASSERT_GE(second, saved - 1);
            ASSERT_GE(first, saved);
            discardCrashedRun(run);
            ++recovered;
        }
        ASSERT_TRUE(std::filesystem::is_empty(runsIn));
    }
    EXPECT_GT(saved, 50);
    EXPECT_GT(recovered, 50);
}

} // namespace
} // namespace quillmere
