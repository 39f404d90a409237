// Each deck gets a session of its own, so that one deck cannot touch the next and memory stays that
// of one deck. Held by tests/cli/repair_test.cpp.

#include "cli/commands.h"
#include "cli/core_session.h"
#include "cli/guarded.h"
#include "cli/terminal.h"
#include "document/deck_changes.h"
#include "document/deck_changes_json.h"
#include "document/deck_changes_report.h"
#include "document/deck_repair.h"
#include "document/deck_store.h"
#include "document/files.h"
#include "document/paths.h"
#include "document/windows1252.h"

#include <algorithm>
#include <set>

namespace quillmere::cli {

namespace {

struct Repaired {
    std::string read; // as the conversion read it
    std::string written;
};

Repaired repairInto(CoreSession& core, const std::string& path)
{
    const auto [directory, name] = SplitPath(path);
    LoadDeck(core.session, {name, directory, {}, {}});
    const DeckRecord& first = core.session.deck.front();
    std::string read = core.workFiles.read(first.pristineDir + first.pristineFile);
    WriteDeck(core.session);
    return {std::move(read), core.workFiles.read(first.wmlDir + first.wmlFile)};
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

std::string reportOf(
    const std::string& path, const Repaired& repaired, const Arguments& arguments, bool first)
{
    DeckChangesReport report = DeckChanges(repaired.read, repaired.written);
    report.stable = repairedAgain(repaired.written, path, arguments) == repaired.written;
    const std::string name = fromUtf8(path);
    if (!arguments.json) return (first ? "" : "\n") + textReport(report, name);
    return (first ? "" : ",\n") + jsonReport(report, name);
}

std::string outputPath(const Arguments& arguments, const std::string& input)
{
    if (arguments.output) return *arguments.output;
    if (arguments.outDir) return NormalisePath(*arguments.outDir) + SplitPath(input).name;
    return input;
}

std::string repairOne(const Arguments& arguments, const std::string& input, bool first)
{
    CoreSession core(arguments.standardOutput);
    const Repaired repaired = repairInto(core, input);
    std::string report
        = arguments.report ? reportOf(input, repaired, arguments, first) : std::string();
    if (arguments.keepWork) keepWorkFiles(core, *arguments.keepWork);
    if (arguments.output == "-") {
        printBytes(repaired.written);
    } else {
        replaceFile(outputPath(arguments, input), repaired.written);
    }
    return report;
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
    ExitStatus status = ExitStatus::Done;
    std::size_t reported = 0;
    if (arguments.json) printBytes("[");
    for (const std::string& input : arguments.operands) {
        const ExitStatus one = guarded(input, [&] {
            const std::string report = repairOne(arguments, input, reported == 0);
            arguments.json ? printBytes(report) : print(report);
            if (arguments.report) ++reported;
            return ExitStatus::Done;
        });
        status = std::max(status, one);
    }
    if (arguments.json) printBytes("]\n");
    return status;
}

} // namespace quillmere::cli
