#include "program/command_line_deck.h"

#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillmere {
namespace {

TEST(CommandLine, IsOnePathToADeckOrNone)
{
    // "" for no deck
    const char* const rows[][2] = {
        {"\"/home/a b/index.wml\"", "/home/a b/|index.wml"},
        {"  /a/seite.wml ", "/a/|seite.wml"},
        {"/a\"b/se\"ite.wml", "/ab/|seite.wml"},
        {"/a/SEITE.WML", "/a/|SEITE.WML"},
        {"/a/xwml.", ""},
        {"/a/xwml", ""}, // four characters
        {"/a/x.wml", "/a/|x.wml"},
        {"/a/kwwml", "/a/|kwwml"}, // no point is asked for
        {"seite.wml", ""},
        {"/a/seite.wml /b/seite.wml", "/a/seite.wml /b/|seite.wml"},
        {"/a/seite.wml -x", ""},
        {"C:\\wap\\seite.wml", ""}, // a name without a directory
        {"/a/b\\seite.wml", "/a/|b\\seite.wml"},
        {"", ""},
        {"\"\"", ""},
    };
    for (const auto& [line, wanted] : rows) {
        SCOPED_TRACE(line);
        const auto deck = deckOfCommandLine(line);
        EXPECT_EQ(deck ? deck->directory + "|" + deck->name : "", wanted);
    }
}

TEST(CommandLine, GivesABareNameTheDirectoryThatItWasTypedIn)
{
    const test::ScratchFolder folder;
    (void)folder.put("meine seite.wml", "");
    const auto line = [&](std::vector<std::string> arguments) {
        std::vector<char*> pointers;
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
