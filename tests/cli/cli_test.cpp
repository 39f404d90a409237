#include "document/platform/word_ids.h"
#include "support/run_program.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using Call = std::vector<std::string>;

constexpr const char* kDeck = "<?xml version=\"1.0\"?>\n<wml>\n<card id=\"a\" title=\"Eins\">\n"
                              "<do type=\"accept\" label=\"Weiter\"><go href=\"#b\"/></do>\n"
                              "<p>Gr\xFC\xDF\x65</p>\n</card>\n<card id=\"b\" title=\"Zw\tei\">\n"
                              "<p>x</p>\n</card>\n</wml>\n";

class Cli : public testing::Test {
protected:
    /// A word that begins with "@" is a file of the folder.
    test::RunResult cli(Call call, const std::string& input = {})
    {
        for (auto& word : call)
            if (word.starts_with('@')) word.replace(0, 1, folder.path());
        return test::runProgram(QUILLMERE_CLI, call, input);
    }
    test::ScratchFolder folder;
};

TEST_F(Cli, TellsWhatWentWrongAndChangesNothing)
{
    const std::pair<int, std::vector<Call>> rows[] = {
        {1,
            {{}, {"nothing"}, {"repair"}, {"repair", "--what"}, {"repair", "-o"},
                {"repair", "a", "b", "-o", "c"}, {"repair", "x/a.wml", "y/a.wml", "--out-dir", "z"},
                {"repair", "a", "--json"}, {"repair", "a", "--report", "-o", "-"},
                {"repair", "a", "b", "--out-dir", "c", "--keep-work", "d"},
                {"repair", "a", "-o", "b", "--out-dir", "c"}, {"areas"}, {"areas", "a", "b"},
                {"areas", "a", "-o", "b"}, {"step", "Nothing"}, {"step", "WrapInParagraph", "<b>"},
                {"step", "RestoreWhitespace"}, {"wbmp-show", "a.wbmp"}, {"words", "x"}}},
        {2,
            {{"repair", "@none.wml"}, {"repair", "@"}, {"areas", "@none.wml"},
                {"repair", "@d.wml", "-o", "@none/out.wml"}, {"repair", "@d.wml", "-o", "@"},
                {"repair", "@d.wml", "--out-dir", "@d.wml"},
                {"repair", "@d.wml", "-o", "/dev/full"},
                {"wbmp-show", "@none.wbmp", "-o", "@x.bmp"}}},
        {3, {{"repair", "@long.wml", "-o", "@o.wml"}, {"repair", "@quote.wml"}}},
    };
    folder.put("d.wml", kDeck);
    folder.put("long.wml", std::string(40000, 'x'));
    folder.put("quote.wml", "<card id=\"a\"><do type=\"x\" label=\"y></do></card>");
    for (const auto& [status, calls] : rows) {
        for (const auto& call : calls) {
            SCOPED_TRACE(testing::PrintToString(call));
            const auto result = cli(call);
            EXPECT_EQ(result.status, status);
            EXPECT_EQ(result.output, "");
            EXPECT_TRUE(result.errors.starts_with("quillmere-cli: ")) << result.errors;
        }
    }
    EXPECT_EQ(folder.get("d.wml"), kDeck);
    EXPECT_TRUE(folder.get("quote.wml").ends_with("</card>"));
    EXPECT_FALSE(folder.has("o.wml") || folder.has("x.bmp"));

    // Of several decks the good ones are written, and the worst of the others tells the status.
    const auto result = cli({"repair", "--out-dir", "@out", "@none.wml", "@long.wml", "@d.wml"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(folder.has("out/d.wml"));
    EXPECT_FALSE(folder.has("out/long.wml"));
    EXPECT_NE(result.errors.find("none.wml"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("long.wml: Überlauf"), std::string::npos) << result.errors;
}

TEST_F(Cli, HelpNamesEveryCommandAndEachCommandItsOptions)
{
    const auto general = cli({"--help"});
    EXPECT_EQ(general.status, 0);
    for (const std::string command : {"repair", "areas", "step", "wbmp-show", "words"}) {
        EXPECT_NE(general.output.find("\n  " + command), std::string::npos);
        EXPECT_NE(cli({command, "--help"}).output.find("--standard-output"), std::string::npos);
    }
    EXPECT_NE(cli({"-h", "repair"}).output.find("--keep-work"), std::string::npos);
}

TEST_F(Cli, WritesToStandardOutputJustWhatIsAsked)
{
    const std::string areas = "0\ta\tEins\tWeiter\t#b\n1\tb\tZw ei\t\t\n";
    const std::string json
        = "[{\"index\": 0, \"id\": \"a\", \"title\": \"Eins\", \"label\": \"Weiter\", "
          "\"target\": \"#b\"},\n"
          " {\"index\": 1, \"id\": \"b\", \"title\": \"Zw\\u0009ei\", \"label\": \"\", "
          "\"target\": \"\"}]\n";
    const struct {
        Call call;
        std::string input;
        std::string output;
    } rows[] = {
        {{"step", "WmlToDesign"}, "<img src=\"a.wbmp\" alt=\"x\"/>",
            "<img src=\"a.wbmp\" alt=\"x\"/>"},
        {{"step", "DesignToWml", "--standard-output"}, "<TABLE border=1>", "<table>"},
        {{"step", "TakeDoBlock"}, "a<do>b</do>c</card>", "<do>b</do>\n----\nac</card>"},
        {{"step", "TransliterateGerman", "--standard-output"}, "\xFC\x80", "&#252;&#8364;"},
        {{"step", "RepairFormatAroundSelect"}, "<b><select></select></b>", "<select></select>"},
        {{"step", "WrapInParagraph", "<a", "</a"}, "<a>y</a>", "<p><a>y</a></p>"},
        {{"step", "RestoreWhitespace", "--pristine", "@old.wml"}, "<wml><card>", "<wml>\n\n<card>"},
        {{"step", "RepairNesting"}, "", ""},
        {{"areas", "@d.wml"}, "", areas},
        {{"areas", "--json", "@d.wml"}, "", json},
        {{"words", "9999"}, "", "\n"},
    };
    folder.put("old.wml", "<wml>\n\n<card>");
    folder.put("d.wml", kDeck);
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.call));
        const auto result = cli(row.call, row.input);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.output, row.output);
    }
    EXPECT_NE(cli({"words"}).output.find("136\t"), std::string::npos);
    EXPECT_EQ(cli({"words", std::to_string(word::kNumberRange), "1", "30"}).output,
        "Bitte geben Sie eine Zahl von 1 bis 30 ein.\n");
    EXPECT_EQ(folder.get("d.wml"), kDeck);
}

TEST_F(Cli, RepairReportsWhatItChanges)
{
    folder.put("d.wml", kDeck);
    folder.put("e.wml", "<wml><card id=\"a\"><p><em>x<i>y</i></em></p></card></wml>");
    const auto report = [&](Call more) {
        Call call{"repair", "--report", "--out-dir", "@out", "@d.wml", "@e.wml"};
        call.insert(call.end(), more.begin(), more.end());
        return cli(call).output;
    };
    const auto text = report({});
    EXPECT_NE(text.find("Verloren: <em> (Zeile 1, Spalte 22)"), text.npos) << text;
    const auto stays = text.find("Eine weitere Korrektur ändert daran nichts.");
    EXPECT_LT(stays, text.find("Eine weitere Korrektur ändert es noch einmal.")) << text;
    const auto json = report({"--json", "--standard-output"});
    EXPECT_TRUE(json.starts_with("[{\"deck\": ") && json.ends_with("}]\n")) << json;
    EXPECT_LT(json.find("\"stable\": true"), json.find("},\n{\"deck\": ")) << json;
    EXPECT_EQ(json.find("Gruesse"), json.npos);
}

TEST_F(Cli, RepairWritesWhereItIsTold)
{
    folder.put("d.wml", kDeck);
    EXPECT_EQ(cli({"repair", "@d.wml", "-o", "@out.wml"}).status, 0);
    const auto written = folder.get("out.wml");
    EXPECT_NE(written.find("<p>Gruesse</p>"), std::string::npos) << written;
    EXPECT_EQ(folder.get("d.wml"), kDeck);
    EXPECT_EQ(cli({"repair", "@d.wml", "--out-dir", "@new/dir"}).status, 0);
    EXPECT_EQ(folder.get("new/dir/d.wml"), written);
    EXPECT_EQ(cli({"repair", "@d.wml", "-o", "-"}).output, written);
    EXPECT_EQ(cli({"repair", "@d.wml", "--keep-work", "@work"}).status, 0);
    EXPECT_EQ(folder.get("d.wml"), written);
    EXPECT_TRUE(folder.get("work/Wml0.htm").starts_with("<!--card id=\"a\""));
    EXPECT_TRUE(folder.get("work/Wml1.htm").starts_with("<!--card id=\"b\""));
    EXPECT_FALSE(folder.has("work/Wml2.htm"));
    // What is no deck becomes one elsewhere, with a warning, but never in its place.
    for (const auto& bytes : {std::string(), std::string("Kein WML"), std::string(100, '\0'),
             std::string("<card>\0</card>", 14), std::string("<card id=\"a\"")}) {
        folder.put("any.wml", bytes);
        const auto converted = cli({"repair", "@any.wml", "-o", "-"});
        EXPECT_NE(converted.output.find("</card>"), bytes.npos);
        EXPECT_NE(converted.errors.find("wohl kein WML-Deck"), bytes.npos);
        EXPECT_EQ(cli({"repair", "@any.wml"}).status, 2);
        EXPECT_EQ(folder.get("any.wml"), bytes);
    }
    folder.put("a.wbmp", {"\0\0\x03\x02\xA0\x40", 6});
    EXPECT_EQ(cli({"wbmp-show", "@a.wbmp", "-o", "@a.bmp"}).status, 0);
    EXPECT_TRUE(folder.get("a.bmp").starts_with("BM"));
}

} // namespace
} // namespace quillmere
