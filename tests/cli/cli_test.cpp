#include "support/run_program.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace quillmere {
namespace {

using test::bytesOf;
using test::runProgram;
using test::RunResult;
using test::TemporaryDirectory;

RunResult cli(const std::vector<std::string>& arguments, const std::string& input = {})
{
    return runProgram(QUILLMERE_CLI, arguments, input);
}

constexpr const char* kDeck = "<?xml version=\"1.0\"?>\n<wml>\n<card id=\"a\" title=\"Eins\">\n"
                              "<do type=\"accept\" label=\"Weiter\"><go href=\"#b\"/></do>\n"
                              "<p>Gr\xFC\xDF"
                              "e</p>\n</card>\n<card id=\"b\" title=\"Zw\tei\">\n"
                              "<p>x</p>\n</card>\n</wml>\n";

TEST(Cli, BadArgumentsEndWithOneAndAMessage)
{
    const std::vector<std::vector<std::string>> calls
        = {{}, {"nothing"}, {"repair"}, {"repair", "--what"}, {"repair", "-o"},
            {"repair", "a", "b", "-o", "c"}, {"repair", "x/a.wml", "y/a.wml", "--out-dir", "z"},
            {"repair", "a", "--json"}, {"areas"}, {"areas", "a", "b"}, {"areas", "a", "-o", "b"},
            {"step", "Nothing"}, {"step", "WrapInParagraph", "<b>"}, {"step", "RestoreWhitespace"},
            {"wbmp-show", "a.wbmp"}, {"words", "x"}};
    for (const auto& call : calls) {
        const RunResult result = cli(call);
        SCOPED_TRACE(testing::PrintToString(call));
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(result.errors.starts_with("quillmere-cli: ")) << result.errors;
    }
}

TEST(Cli, HelpNamesEveryCommandAndEachCommandItsOptions)
{
    const RunResult general = cli({"--help"});
    EXPECT_EQ(general.status, 0);
    for (const std::string command : {"repair", "areas", "step", "wbmp-show", "words"}) {
        EXPECT_NE(general.output.find("\n  " + command), std::string::npos);
        const RunResult one = cli({command, "--help"});
        EXPECT_EQ(one.status, 0);
        EXPECT_NE(one.output.find("--standard-output"), std::string::npos) << command;
    }
    EXPECT_NE(cli({"-h", "repair"}).output.find("--keep-work"), std::string::npos);
}

TEST(Cli, StepPassesBytesAndAddsNothing)
{
    struct Row {
        std::vector<std::string> call;
        std::string input;
        std::string output;
    };
    const std::vector<Row> rows = {
        {{"WmlToDesign"}, "<p mode=\"nowrap\">\xE4</p>", "<p>\xE4</p>"},
        {{"WmlToDesign"}, "<img src=\"a.wbmp\" alt=\"x\"/>", "<img src=\"a.wbmp\" alt=\"x\"/>"},
        {{"DesignToWml"}, "<EM>x</EM><TABLE border=1>", "<i>x</i><TABLE border=1>"},
        {{"DesignToWml", "--standard-output"}, "<TABLE border=1>", "<table>"},
        {{"TakeDoBlock"}, "a<do>b</do>c</card>", "<do>b</do>\n----\nac</card>"},
        {{"TakeDoBlock"}, "a", "\n----\na"},
        {{"TransliterateGerman"}, "M\xFCller \xE9", "Mueller  "},
        {{"TransliterateGerman", "--standard-output"}, "\xFC\x80", "&#252;&#8364;"},
        {{"RepairFormatAroundSelect"}, "<b><select></select></b>", "<select></select>"},
        {{"WrapInParagraph", "<a", "</a"}, "<a href=\"x\">y</a>", "<p><a href=\"x\">y</a></p>"},
        {{"RepairNesting"}, "", ""},
    };
    for (const Row& row : rows) {
        std::vector<std::string> call = row.call;
        call.insert(call.begin(), "step");
        SCOPED_TRACE(testing::PrintToString(call));
        const RunResult result = cli(call, row.input);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.output, row.output);
    }
}

TEST(Cli, StepTakesThePristineTextFromAFile)
{
    const TemporaryDirectory directory;
    const std::string pristine = directory.write("old.wml", "<wml>\n\n<card id=\"a\">");
    const RunResult result
        = cli({"step", "RestoreWhitespace", "--pristine", pristine}, "<wml><card id=\"a\">");
    EXPECT_EQ(result.output, "<wml>\n\n<card id=\"a\">");
}

TEST(Cli, RunFailuresEndWithThree)
{
    const RunResult tooLong = cli({"step", "CleanDesignHtml"}, std::string(32768, 'x'));
    EXPECT_EQ(tooLong.status, 3);
    EXPECT_EQ(tooLong.output, "");
    EXPECT_NE(tooLong.errors.find("Überlauf"), std::string::npos);
    EXPECT_EQ(cli({"step", "DesignToWml"}, "<a href=\"x>").status, 3);
}

TEST(Cli, AreasShowsALineForEachAreaOrJson)
{
    const TemporaryDirectory directory;
    const std::string deck = directory.write("d.wml", kDeck);
    EXPECT_EQ(cli({"areas", deck}).output, "0\ta\tEins\tWeiter\t#b\n1\tb\tZw ei\t\t\n");
    EXPECT_EQ(cli({"areas", "--json", deck}).output,
        "[{\"index\": 0, \"id\": \"a\", \"title\": \"Eins\", \"label\": \"Weiter\", "
        "\"target\": \"#b\"},\n"
        " {\"index\": 1, \"id\": \"b\", \"title\": \"Zw\\u0009ei\", \"label\": \"\", "
        "\"target\": \"\"}]\n");
    EXPECT_EQ(bytesOf(deck), kDeck);
}

TEST(Cli, RepairWritesWhereItIsTold)
{
    const TemporaryDirectory directory;
    const std::string deck = directory.write("d.wml", kDeck);
    EXPECT_EQ(cli({"repair", deck, "-o", directory.path("out.wml")}).status, 0);
    const std::string written = bytesOf(directory.path("out.wml"));
    EXPECT_NE(written.find("<p>Gruesse</p>"), std::string::npos) << written;
    EXPECT_EQ(bytesOf(deck), kDeck);

    EXPECT_EQ(cli({"repair", deck, "--out-dir", directory.path("new/dir")}).status, 0);
    EXPECT_EQ(bytesOf(directory.path("new/dir/d.wml")), written);
    EXPECT_EQ(cli({"repair", deck, "-o", "-"}).output, written);
    EXPECT_EQ(cli({"repair", deck, "--keep-work", directory.path("work")}).status, 0);
    EXPECT_EQ(bytesOf(deck), written);
    EXPECT_TRUE(bytesOf(directory.path("work/Wml0.htm")).starts_with("<!--card id=\"a\""));
    EXPECT_TRUE(bytesOf(directory.path("work/Wml1.htm")).starts_with("<!--card id=\"b\""));
    EXPECT_FALSE(std::filesystem::exists(directory.path("work/Wml2.htm")));
}

TEST(Cli, RepairOfSeveralDecksGoesOnBehindAFailure)
{
    const TemporaryDirectory directory;
    const std::string good = directory.write("good.wml", kDeck);
    const std::string tooLong = directory.write("long.wml", std::string(40000, 'x'));
    const std::string missing = directory.path("missing.wml");
    const RunResult result
        = cli({"repair", "--out-dir", directory.path("out"), missing, tooLong, good});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(std::filesystem::exists(directory.path("out/good.wml")));
    EXPECT_FALSE(std::filesystem::exists(directory.path("out/long.wml")));
    EXPECT_NE(result.errors.find("missing.wml“"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("long.wml: Überlauf"), std::string::npos) << result.errors;
}

TEST(Cli, FileTroubleEndsWithTwoAndLeavesTheDeck)
{
    const TemporaryDirectory directory;
    const std::string deck = directory.write("d.wml", kDeck);
    const std::vector<std::vector<std::string>> calls = {{"repair", directory.path("none.wml")},
        {"repair", directory.path()}, {"areas", directory.path("none.wml")},
        {"repair", deck, "-o", directory.path("none/out.wml")},
        {"repair", deck, "-o", directory.path()}, {"repair", deck, "--out-dir", deck},
        {"repair", deck, "-o", "/dev/full"},
        {"wbmp-show", directory.path("none.wbmp"), "-o", directory.path("x.bmp")}};
    for (const auto& call : calls) {
        SCOPED_TRACE(testing::PrintToString(call));
        const RunResult result = cli(call);
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.errors, "");
    }
    EXPECT_EQ(bytesOf(deck), kDeck);
}

TEST(Cli, AnyBytesGiveADeckWithAWarningButNotInTheirPlace)
{
    const TemporaryDirectory directory;
    for (const std::string& bytes : {std::string(), std::string("Kein WML"), std::string(100, '\0'),
             std::string("\xFF\xFE<\0w\0", 6), std::string("<card id=\"a\"")}) {
        const std::string deck = directory.write("any.wml", bytes);
        const RunResult converted = cli({"repair", deck, "-o", "-"});
        EXPECT_EQ(converted.status, 0);
        EXPECT_NE(converted.output.find("</card>"), std::string::npos);
        EXPECT_NE(converted.errors.find("wohl kein WML-Deck"), std::string::npos);
        EXPECT_EQ(cli({"repair", deck}).status, 2);
        EXPECT_EQ(bytesOf(deck), bytes);
    }
}

TEST(Cli, WbmpShowWritesABmp)
{
    const TemporaryDirectory directory;
    const std::string picture = directory.write("a.wbmp", std::string("\0\0\x03\x02\xA0\x40", 6));
    EXPECT_EQ(cli({"wbmp-show", picture, "-o", directory.path("a.bmp")}).status, 0);
    EXPECT_TRUE(bytesOf(directory.path("a.bmp")).starts_with("BM"));
}

TEST(Cli, WordsShowsTextsByNumber)
{
    EXPECT_NE(cli({"words"}).output.find("136\t"), std::string::npos);
    const RunResult one = cli({"words", "136"});
    EXPECT_EQ(one.status, 0);
    EXPECT_GT(one.output.size(), 1U);
    EXPECT_EQ(cli({"words", "9999"}).output, "\n");
    EXPECT_EQ(cli({"words", "1", "--skins", "/nonexistent"}).status, 2);
}

} // namespace
} // namespace quillmere
