#include "cli/cli_fixture.h"

#include <csignal>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmere {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using test::Call;
using test::Cli;
using test::kDeck;

constexpr const char* kStray = "<wml>\n<card id=\"a\">\n<p>x</b> y</p>\n</card></wml>";
constexpr const char* kNoQuote = "<card id=\"a\"><do type=\"x\" label=\"y></do></card>";

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

TEST_F(Cli, RepairWithStandardOutputMendsAndTellsIt)
{
    folder.put("d.wml", "<wml><card id=a>\xFC<timer value='1'/></card></wml>");
    const auto told = cli({"repair", "@d.wml", "--standard-output", "--report"}).output;
    EXPECT_EQ(
        folder.get("d.wml"), "<wml><card id=\"a\"><p>&#252;</p><timer value='1'/></card></wml>");
    EXPECT_NE(told.find("Berichtigt: Ein Wert bekam Anführungszeichen (Zeile 1, Spalte 6): a -> "
                        "\"a\"\n"),
        told.npos)
        << told;
    const auto json = cli({"repair", "@d.wml", "--standard-output", "--dry-run", "--json"}).output;
    EXPECT_NE(json.find(", \"mends\": [], "), json.npos) << json;
    folder.put("e.wml", "<wml><card><p>\xC3\xBC\xE2\x82\xAC</b></p></card></wml>");
    const auto column = cli({"repair", "@e.wml", "--standard-output", "--report"}).output;
    EXPECT_NE(column.find("(Zeile 1, Spalte 17): </b>"), column.npos) << column;
    folder.put("u.wml", "\xFF\xFE<\0w\0m\0l\0>\0<\0c\0a\0r\0d\0/\0>\0<\0/\0w\0m\0l\0>\0"s);
    const auto wide = folder.get("u.wml");
    EXPECT_EQ(cli({"repair", "@u.wml", "--standard-output"}).status, 0);
    EXPECT_EQ(folder.get("u.wml"), wide);
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

TEST_F(Cli, KeepWorkNeverTakesThePlaceOfDeckOrResult)
{
    for (const char* name : {"d.wml", "Wml0.htm", "w/Wml1.htm"})
        folder.put(name, kDeck);
    folder.put("v/other", "");
    fs::create_symlink("../d.wml", folder.path() + "v/Wml0.htm");
    const Call rows[] = {
        {"@Wml0.htm", "--keep-work", "@"}, // the deck
        {"@Wml0.htm", "-o", "@o.wml", "--keep-work", "@w/.."},
        {"@w/Wml1.htm", "--keep-work", "@w"}, // the second area's
        {"@d.wml", "-o", "@neu/Wml0.htm", "--keep-work", "@neu"}, // the result, not there yet
        {"@d.wml", "--out-dir", "@v", "--keep-work", "@v"}, // through a link
    };
    for (auto call : rows) {
        SCOPED_TRACE(testing::PrintToString(call));
        call.insert(call.begin(), "repair");
        const auto result = cli(call);
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.errors.find("käme an die Stelle des "), std::string::npos);
    }
    for (const char* name : {"d.wml", "Wml0.htm", "w/Wml1.htm"})
        EXPECT_EQ(folder.get(name), kDeck) << name;
    EXPECT_FALSE(folder.has("o.wml") || folder.has("neu"));
    for (const char* unwritable : {"@none/o.wml", "@v"}) // nor is it left of what cannot be written
        EXPECT_EQ(cli({"repair", "@d.wml", "-o", unwritable, "--keep-work", "@neu"}).status, 2);
    EXPECT_FALSE(folder.has("neu"));
    EXPECT_EQ(cli({"repair", "@d.wml", "-o", "@neu/o.wml", "--keep-work", "@neu"}).status, 0);
    EXPECT_TRUE(folder.has("neu/o.wml") && folder.has("neu/Wml1.htm"));
}

TEST_F(Cli, BackupKeepsTheOldBytesAndNoOther)
{
    folder.put("d.wml", kDeck);
    folder.put("d.wml.bak", "alt");
    EXPECT_EQ(cli({"repair", "@d.wml", "--backup"}).status, 0);
    EXPECT_NE(folder.get("d.wml"), kDeck);
    EXPECT_EQ(folder.get("d.wml.bak"), "alt");
    EXPECT_EQ(folder.get("d.wml.bak1"), kDeck);
    EXPECT_EQ(cli({"repair", "@d.wml", "--backup"}).status, 0); // changes nothing any more
    EXPECT_FALSE(folder.has("d.wml.bak2"));
}

TEST_F(Cli, DryRunWritesNothingAndTellsWhat)
{
    folder.put("d.wml", kDeck);
    fs::create_directory(folder.path() + "folder");
    const auto path = folder.path();
    const std::tuple<Call, std::string> rows[] = {
        {{"--backup"},
            "„" + path + "d.wml“ würde durch 290 Byte ersetzt.\nDas alte Deck bliebe als „" + path
                + "d.wml.bak“.\n"},
        {{"-o", "-"}, "Auf die Standardausgabe kämen 290 Byte.\n"},
        {{"--out-dir", "@neu", "--keep-work", "@w"},
            "„" + path + "neu/d.wml“ würde mit 290 Byte angelegt.\nArbeitsdateien: „" + path
                + "w/Wml0.htm“ bis „" + path + "w/Wml1.htm“.\n"},
    };
    for (const auto& [more, told] : rows) {
        Call call{"repair", "@d.wml", "--dry-run"};
        call.insert(call.end(), more.begin(), more.end());
        const auto result = cli(call);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_TRUE(
            result.output.ends_with("\n" + told + "Geschrieben wurde nichts (--dry-run).\n"))
            << result.output;
    }
    EXPECT_EQ(cli({"repair", "@d.wml", "--dry-run", "-o", "@folder"}).status, 2);
    EXPECT_EQ(cli({"repair", "@d.wml", "--dry-run", "-o", "@none/x"}).status, 2);
    EXPECT_EQ(folder.get("d.wml"), kDeck);
    EXPECT_FALSE(folder.has("d.wml.bak") || folder.has("neu") || folder.has("w"));
}

/// The members behind each "deck", from "output" on or, without it, all of them.
std::string endsOf(const std::string& json)
{
    std::string ends;
    for (std::size_t at = json.find("{\"deck\": "); at != std::string::npos;) {
        const auto next = json.find("{\"deck\": ", at + 1);
        const auto object = json.substr(at, next == std::string::npos ? next : next - at);
        const auto output = object.find(", \"output\"");
        ends += output == std::string::npos ? object : object.substr(output);
        at = next;
    }
    return ends;
}

TEST_F(Cli, JsonHasTheDecksThatFailed)
{
    folder.put("d.wml", kStray);
    folder.put("q\u2603.wml", kNoQuote);
    fs::create_directory(folder.path() + "out");
    fs::create_directory(folder.path() + "out/x.wml");
    folder.put("x.wml", kStray);
    const auto result = cli({"repair", "--report", "--json", "--out-dir", "@out", "@q\u2603.wml",
        "@d.wml", "@x.wml", "@n\xFC\n.wml"});
    const auto path = folder.path();
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.output.starts_with("[{\"deck\": \"") && result.output.ends_with("}]\n"));
    EXPECT_EQ(result.errors.find("wohlgeformt"), std::string::npos) << result.errors;
    const std::string unchanged = "Es wurde nichts geändert.\"}";
    EXPECT_EQ(endsOf(result.output),
        "{\"deck\": \"" + path + "q\u2603.wml\", \"written\": false, \"error\": \"" + path
            + "q\u2603.wml: Ungültiger Prozeduraufruf oder ungültiges Argument: Dem Text fehlt "
              "etwas, etwa ein schließendes Anführungszeichen oder das Ende einer Auswahlliste. "
            + unchanged + ",\n, \"output\": \"" + path
            + "out/d.wml\", \"bytes\": 170, \"backup\": null, \"workFiles\": [], "
              "\"written\": true, \"error\": null},\n, \"output\": \""
            + path
            + "out/x.wml\", \"bytes\": 170, \"backup\": null, \"workFiles\": [], "
              "\"written\": false, \"error\": \"Die Datei „"
            + path + "out/x.wml“ kann nicht geschrieben werden: es ist ein Ordner. " + unchanged
            + ",\n{\"deck\": \"" + path
            + "nü\\u000a.wml\", \"written\": false, \"error\": \"Die Datei „" + path
            + "nü\\u000a.wml“ kann nicht gelesen werden: Datei oder Ordner gibt es nicht. "
            + unchanged + "]\n");
    const auto noFolder
        = cli({"repair", "@d.wml", "@x.wml", "--out-dir", "@d.wml/x", "--report", "--json"});
    EXPECT_EQ(noFolder.status, 2);
    EXPECT_TRUE(noFolder.output.starts_with("[{\"deck\"") && noFolder.output.ends_with("}]\n"));
}

/// More decks than are kept waiting for the disk at once.
TEST_F(Cli, ManyDecksAreWrittenAndToldInTheirOrder)
{
    Call call{"repair", "--out-dir", "@out"};
    for (int i = 100; i < 175; ++i) {
        const auto name = std::to_string(i) + ".wml";
        if (i % 5 == 0) folder.put(name, kStray);
        if (i % 5 == 1) folder.put(name, kNoQuote);
        if (i % 5 > 2) folder.put(name, kDeck); // the others are missing
        call.push_back("@" + name);
    }
    folder.put("out/104.wml/not empty", "");
    const auto result = cli(call);
    EXPECT_EQ(result.status, 3);
    auto told = result.errors.find("100.wml: Das Ergebnis ist nicht wohlgeformt");
    for (int i = 100; i < 175; ++i) {
        SCOPED_TRACE(i);
        const auto name = std::to_string(i) + ".wml";
        const bool isWritten = i != 104 && i % 5 != 1 && i % 5 != 2;
        EXPECT_EQ(folder.has("out/" + name), isWritten || i == 104);
        if (isWritten && i % 5 != 0) continue;
        told = result.errors.find(name, told);
        ASSERT_NE(told, std::string::npos) << result.errors;
    }
}

} // namespace
} // namespace quillmere
