#include "cli/cli_fixture.h"
#include "document/platform/word_ids.h"

namespace quillmere {
namespace {

using test::Call;
using test::Cli;
using test::kDeck;

TEST_F(Cli, TellsWhatWentWrongAndChangesNothing)
{
    const std::pair<int, std::vector<Call>> rows[] = {
        {1,
            {{}, {"nothing"}, {"repair"}, {"repair", "--what"}, {"repair", "-o"},
                {"repair", "a", "b", "-o", "c"}, {"repair", "x/a.wml", "y/a.wml", "--out-dir", "z"},
                {"repair", "a", "--json"}, {"repair", "a", "--backup", "-o", "b"},
                {"repair", "@d.wml", "-o", "@o.wml", "--output", "@p.wml"},
                {"repair", "@d.wml", "--out", "@o.wml"}, {"repair", "@d.wml", "--report=x"},
                {"repair", "a", "--report", "-o", "-"},
                {"repair", "a", "b", "--out-dir", "c", "--keep-work", "d"},
                {"repair", "a", "-o", "b", "--out-dir", "c"}, {"areas"}, {"areas", "a", "b"},
                {"areas", "a", "-o", "b"}, {"step", "Nothing"}, {"step", "WrapInParagraph", "<b>"},
                {"step", "RestoreWhitespace"}, {"wbmp-show", "a.wbmp"}, {"words", "x"},
                {"words", "99999"}}},
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
    const std::tuple<Call, std::string, std::string> rows[] = {
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
        {{"words", "1", "--skins", "@words"}, "", "\n"},
        {{"--version", "repair"}, "", "quillmere-cli 0.1.0\n"},
    };
    folder.put("words/ResWords.ini", "<word id=\"1\"></word><word id=\"2\">x</word>");
    folder.put("old.wml", "<wml>\n\n<card>");
    folder.put("d.wml", kDeck);
    for (const auto& [call, input, output] : rows) {
        SCOPED_TRACE(testing::PrintToString(call));
        const auto result = cli(call, input);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.output, output);
    }
    EXPECT_TRUE(cli({"repair", "/dev/stdin", "-o", "-"}, kDeck).output.ends_with("</wml>\r\n"));
    EXPECT_NE(cli({"words"}).output.find("136\t"), std::string::npos);
    EXPECT_EQ(cli({"words", std::to_string(word::kNumberRange), "1", "30"}).output,
        "Bitte geben Sie eine Zahl von 1 bis 30 ein.\n");
    EXPECT_EQ(folder.get("d.wml"), kDeck);
}

TEST_F(Cli, MessagesNameFilesAsTheTerminalShowsThem)
{
    const std::pair<std::string, std::string> rows[] = {
        {"Gr\u00FC\u00DFe \u2603.wml", "Gr\u00FC\u00DFe \u2603.wml"}, // beyond Windows-1252
        {"l\xFCt.wml", "l\xFCt.wml"}, // no UTF-8
        {"zwei\nZeilen\x1B[2J", "zwei?Zeilen?[2J"},
    };
    for (const auto& [name, shown] : rows) {
        EXPECT_EQ(cli({"areas", name}).errors,
            "quillmere-cli: Die Datei „" + shown
                + "“ kann nicht gelesen werden: Datei oder Ordner gibt es nicht. "
                  "Es wurde nichts geändert.\n");
        folder.put(name, kDeck);
        const auto report = cli({"repair", "@" + name, "--dry-run"}).output;
        EXPECT_TRUE(report.starts_with(folder.path() + shown + "\n")) << report;
    }
}

} // namespace
} // namespace quillmere
