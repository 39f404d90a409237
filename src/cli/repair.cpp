// Each deck gets a session of its own, so that one deck cannot touch the next and memory stays that
// of one deck. Held by tests/cli/cli_test.cpp.

#include "cli/commands.h"
#include "cli/core_session.h"
#include "cli/guarded.h"
#include "cli/terminal.h"
#include "document/changes/deck_changes.h"
#include "document/changes/deck_changes_json.h"
#include "document/changes/deck_changes_report.h"
#include "document/deck_repair.h"
#include "document/deck_store.h"
#include "document/platform/files.h"
#include "document/platform/paths.h"
#include "document/text/failure.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace quillmere::cli {

namespace {

/// What the decks of one call have in common.
struct Run {
    const Arguments& arguments;
    std::string outDir; // with its separator; "" without --out-dir
    FileReplacements files;
    std::size_t reported = 0; // how many decks
};

/// Repairs the deck in the session and returns what is to be written.
std::string repairInto(CoreSession& core, const std::string& path)
{
    const auto [directory, name] = SplitPath(path);
    LoadDeck(core.session, {name, directory, {}, {}});
    WriteDeck(core.session);
    const DeckRecord& first = core.session.deck.front();
    return core.workFiles.read(first.wmlDir + first.wmlFile);
}

/// The deck as the conversion read it.
std::string readDeckOf(const CoreSession& core)
{
    const DeckRecord& first = core.session.deck.front();
    return core.workFiles.read(first.pristineDir + first.pristineFile);
}

std::string repairedAgain(
    const std::string& written, const std::string& path, const Arguments& arguments)
{
    CoreSession core(arguments.standardOutput);
    return repairedDeck(core.session, written, SplitPath(path).directory);
}

void makeDirectory(const std::string& path)
{
    AssentingPrompter unasked;
    MakeDirectories(NormalisePath(path), false, unasked);
}

void keepWorkFiles(CoreSession& core, const std::string& directory)
{
    const std::string into = NormalisePath(directory);
    makeDirectory(into);
    const Deck& deck = core.session.deck;
    for (std::size_t area = 0; area < areaCount(deck); ++area) {
        const DeckRecord& record = deck[area];
        replaceFile(into + "Wml" + std::to_string(area) + ".htm",
            core.workFiles.read(record.designDir + record.designFile));
    }
}

std::string reportOf(const std::string& path, const CoreSession& core, const std::string& written,
    const Arguments& arguments, bool first)
{
    DeckChangesReport report = DeckChanges(readDeckOf(core), written);
    report.stable = repairedAgain(written, path, arguments) == written;
    const std::string name = fromUtf8(path);
    if (!arguments.json) return (first ? "" : "\n") + textReport(report, name);
    return (first ? "" : ",\n") + jsonReport(report, name);
}

std::string outputPath(const Run& run, const std::string& input)
{
    if (run.arguments.output) return *run.arguments.output;
    if (run.arguments.outDir) return run.outDir + SplitPath(input).name;
    return input;
}

bool holdsCard(std::string_view text)
{
    const auto card = findIgnoringCase(text, "<card");
    return card != npos && text.find('>', card) != npos && text.find('\0') == npos;
}

// Any bytes become a deck, with a card of its own where they have none. That is worth a warning,
// and no file is written over with it.
void checkIsDeck(const Run& run, const std::string& input, std::string_view read)
{
    if (holdsCard(read)) return;
    const std::string reason = "Die Datei „" + input
        + "“ enthält keine vollständige Karte (<card>) und ist wohl kein WML-Deck.";
    std::error_code ignored;
    const bool overItself = run.arguments.output != "-"
        && std::filesystem::equivalent(outputPath(run, input), input, ignored);
    if (overItself)
        throw FileFailure(reason + " Es wurde nichts geändert; umwandeln lässt sie sich mit -o.");
    complain(reason);
}

void printReport(Run& run, const std::string& report)
{
    run.arguments.json ? printBytes(report) : print(report);
    finishOutput(); // ahead of the deck, so that none is replaced whose report is lost
    ++run.reported;
}

void repairOne(Run& run, const std::string& input)
{
    const Arguments& arguments = run.arguments;
    CoreSession core(arguments.standardOutput);
    const std::string written = repairInto(core, input);
    checkIsDeck(run, input, readDeckOf(core));
    if (arguments.report)
        printReport(run, reportOf(input, core, written, arguments, run.reported == 0));
    if (arguments.keepWork) keepWorkFiles(core, *arguments.keepWork);
    if (arguments.output == "-") {
        printBytes(written);
    } else {
        run.files.replace(outputPath(run, input), written);
    }
}

void requireDistinctNames(const std::vector<std::string>& inputs)
{
    std::set<std::string> names;
    for (const std::string& input : inputs) {
        if (names.insert(SplitPath(input).name).second) continue;
        throw BadArguments{
            "Zwei Decks heißen „" + SplitPath(input).name + "“ und kämen in dieselbe Datei."};
    }
}

void checkArguments(const Arguments& arguments)
{
    const auto& inputs = arguments.operands;
    if (inputs.empty()) throw BadArguments{"Es fehlt das Deck."};
    if (arguments.output && arguments.outDir)
        throw BadArguments{"-o und --out-dir gehen nicht zusammen."};
    if (inputs.size() > 1 && arguments.output)
        throw BadArguments{"Mehrere Decks gehen nicht in eine Datei; dafür ist --out-dir da."};
    if (inputs.size() > 1 && arguments.keepWork)
        throw BadArguments{"--keep-work gilt für ein einzelnes Deck."};
    if (arguments.json && !arguments.report) throw BadArguments{"--json gehört zu --report."};
    if (arguments.report && arguments.output == "-")
        throw BadArguments{"Bericht und Deck gehen nicht beide auf die Standardausgabe."};
    if (arguments.outDir) requireDistinctNames(inputs);
}

} // namespace

ExitStatus runRepair(const Arguments& arguments)
{
    checkArguments(arguments);
    if (arguments.outDir) makeDirectory(*arguments.outDir);
    Run run{arguments, arguments.outDir ? NormalisePath(*arguments.outDir) : "", {}, 0};
    ExitStatus status = ExitStatus::Done;
    if (arguments.json) printBytes("[");
    for (const std::string& input : arguments.operands) {
        const ExitStatus one = guarded(input, [&] {
            repairOne(run, input);
            return ExitStatus::Done;
        });
        status = std::max(status, one);
    }
    if (arguments.json) printBytes("]\n");
    return status;
}

} // namespace quillmere::cli
