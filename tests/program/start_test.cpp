#include "program/command_line_deck.h"
#include "program/frm_start.h"
#include "program/single_instance.h"

#include "support/row_file.h"
#include "support/scratch_folder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace quillmere {
namespace {

using test::ScratchFolder;

struct Instances : testing::Test {
    ScratchFolder folder;
    QString store = QString::fromStdString(folder.path() + "Quillmere.conf");
};

TEST_F(Instances, StandWhereNobodyElseWrites)
{
    const auto runtime = folder.path() + "run";
    const auto before = qgetenv("XDG_RUNTIME_DIR");
    const std::tuple<const char*, mode_t, bool> rows[]
        = {{"the person's own", 0700, true}, {"anyone's", 0777, false}, {"none", 0, false}};
    for (const auto& [name, mode, isUsed] : rows) {
        SCOPED_TRACE(name);
        std::filesystem::remove_all(runtime);
        if (mode != 0) {
            std::filesystem::create_directory(runtime);
            ASSERT_EQ(::chmod(runtime.c_str(), mode), 0);
        }
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime));
        const auto other = QString::fromStdString(folder.path() + "config/Quillmere.conf");
        const SingleInstance first(other);
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(SingleInstance(other).isFirst());
        EXPECT_EQ(mode != 0 && !std::filesystem::is_empty(runtime), isUsed);
    }
    before.isNull() ? (void)qunsetenv("XDG_RUNTIME_DIR") : (void)qputenv("XDG_RUNTIME_DIR", before);
}

TEST_F(Instances, OneThatWasKilledDoesNotStandInTheWay)
{
    int channel[2];
    ASSERT_EQ(::pipe(channel), 0);
    const auto child = ::fork();
    if (child == 0) {
        const SingleInstance first(store);
        static_cast<void>(::write(channel[1], first.isFirst() ? "1" : "0", 1));
        ::pause();
        ::_exit(0);
    }
    char begun = 0;
    ASSERT_EQ(::read(channel[0], &begun, 1), 1);
    EXPECT_EQ(begun, '1');
    EXPECT_FALSE(SingleInstance(store).isFirst());
    EXPECT_TRUE(SingleInstance(store + "2").isFirst()) << "another store";
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    SingleInstance next(store);
    EXPECT_TRUE(next.isFirst());
    int shown = 0;
    next.onAsked([&] { ++shown; });
    const SingleInstance second(store);
    second.ActivatePreviousInstance();
    second.ActivatePreviousInstance();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown == 2; }));
    EXPECT_FALSE(QFile::exists(store));
}

TEST(Splash, StandsForItsTimeWhateverIsPressedAndDoesItsWorkOnce)
{
    int work = 0;
    qint64 workedMs = 0;
    QElapsedTimer clock;
    frmStart splash("/nowhere/splash.bmp", [&] {
        ++work;
        workedMs = clock.elapsed();
    });
    QTimer::singleShot(100, &splash, [&] {
        QTest::keyClick(&splash, Qt::Key_Escape);
        splash.close();
        EXPECT_TRUE(splash.isVisible());
    });
    clock.start();
    splash.exec();
    EXPECT_EQ(work, 1);
    EXPECT_GE(workedMs, 745);
    EXPECT_LT(workedMs, 5000) << "of a busy machine";
    EXPECT_FALSE(splash.isVisible());
}

TEST(CommandLine, IsOnePathToADeckOrNone)
{
    for (const auto& row : test::rowsOf("command_lines.txt")) {
        SCOPED_TRACE(row.at(0));
        const auto deck = deckOfCommandLine(row.at(0));
        EXPECT_EQ(deck ? deck->directory + "|" + deck->name : "", row.at(1));
    }
}

TEST(CommandLine, GivesABareNameTheDirectoryThatItWasTypedIn)
{
    const ScratchFolder folder;
    (void)folder.put("meine seite.wml", "");
    const auto line = [&](std::vector<std::string> arguments) {
        std::vector<char*> pointers;
        pointers.reserve(arguments.size());
        for (auto& argument : arguments)
            pointers.push_back(argument.data());
        return commandLineOf(pointers, folder.path());
    };
    EXPECT_EQ(line({"meine seite.wml"}), folder.path() + "meine seite.wml");
    EXPECT_EQ(line({"meine", "seite.wml"}), folder.path() + "meine seite.wml");
    EXPECT_EQ(line({"andere.wml"}), "andere.wml");
    EXPECT_EQ(line({"/x/a.wml"}), "/x/a.wml");
    EXPECT_EQ(line({}), "");
}

} // namespace
} // namespace quillmere
