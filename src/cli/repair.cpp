// Each deck gets a session of its own, so that one deck cannot touch the next and memory stays that
// of one deck. Held by tests/cli/repair_test.cpp.

#include "cli/commands.h"
#include "cli/core_session.h"
#include "cli/deck_check.h"
#include "cli/guarded.h"
#include "cli/repair_plan.h"
#include "cli/repair_report.h"
#include "cli/terminal.h"
#include "document/changes/deck_changes.h"
#include "document/changes/deck_changes_report.h"
#include "document/deck_repair.h"
#include "document/deck_store.h"
#include "document/platform/paths.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <set>

namespace quillmere::cli {

namespace {

/// What the decks of one call have in common.
struct Run {
    const Arguments& arguments;
    RepairReport report;
    FileReplacements files;
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

std::string repairedAgain(
    const std::string& written, const std::string& path, const Arguments& arguments)
{
    CoreSession core(arguments.standardOutput);
    return repairedDeck(core.session, written, SplitPath(path).directory);
}

// No file is written over with what was made of something that is no deck.
void checkIsDeck(const Arguments& arguments, const std::string& input, const CoreSession& core)
{
    const auto doubt = doubtAbout(input, core.session);
    if (!doubt) return;
    if (arguments.output != "-" && samePlace(outputPath(arguments, input), input))
        throw FileFailure(*doubt + " Es wurde nichts geändert; umwandeln lässt sie sich mit -o.");
    complain(*doubt);
}

void warnUnlessWellFormed(const Run& run, const std::string& input, std::string_view written)
{
    if (run.arguments.json) return; // the document tells it
    if (const auto fault = deckFault(written))
        complain(input + ": " + toUtf8(describeFault(*fault)));
}

void repairOne(Run& run, const std::string& input)
{
    const Arguments& arguments = run.arguments;
    CoreSession core(arguments.standardOutput);
    const std::string written = repairInto(core, input);
    const Deck& deck = core.session.deck;
    checkIsDeck(arguments, input, core);
    const RepairPlan plan = planRepair(arguments, input, areaCount(deck), written);
    if (run.report.wanted()) {
        DeckChangesReport report = DeckChanges(readDeckOf(core.session), written);
        report.stable = repairedAgain(written, input, arguments) == written;
        run.report.tell(input, report, plan, written);
    }
    if (!arguments.dryRun) carryOut(plan, deck, core.workFiles, written, run.files);
    warnUnlessWellFormed(run, input, written);
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

/// Options that do not go together, or not with what else is asked.
struct Conflict {
    bool (*applies)(const Arguments& arguments);
    const char* message;
};

constexpr Conflict kConflicts[] = {
    {[](const Arguments& a) { return a.operands.empty(); }, "Es fehlt das Deck."},
    {[](const Arguments& a) { return a.output && a.outDir; },
        "-o und --out-dir gehen nicht zusammen."},
    {[](const Arguments& a) { return a.operands.size() > 1 && a.output; },
        "Mehrere Decks gehen nicht in eine Datei; dafür ist --out-dir da."},
    {[](const Arguments& a) { return a.operands.size() > 1 && a.keepWork; },
        "--keep-work gilt für ein einzelnes Deck."},
    {[](const Arguments& a) { return a.backup && (a.output || a.outDir); },
        "--backup gilt, wo das Deck selbst ersetzt wird, also ohne -o und --out-dir."},
    {[](const Arguments& a) { return a.json && !a.report && !a.dryRun; },
        "--json gehört zu --report oder --dry-run."},
    {[](const Arguments& a) { return a.report && !a.dryRun && a.output == "-"; },
        "Bericht und Deck gehen nicht beide auf die Standardausgabe."},
};

void checkArguments(const Arguments& arguments)
{
    for (const Conflict& conflict : kConflicts)
        if (conflict.applies(arguments)) throw BadArguments{conflict.message};
    if (arguments.outDir) requireDistinctNames(arguments.operands);
}

void makeOutputDirectory(const Arguments& arguments)
{
    if (!arguments.outDir || arguments.dryRun) return;
    AssentingPrompter unasked;
    MakeDirectories(outputDirectory(arguments), false, unasked);
}

} // namespace

ExitStatus runRepair(const Arguments& arguments)
{
    checkArguments(arguments);
    Run run{arguments, RepairReport(arguments), {}};
    const auto noFolder = problemOf("", [&] { makeOutputDirectory(arguments); });
    if (noFolder) complain(noFolder->message); // once for all decks
    ExitStatus status = noFolder ? noFolder->status : ExitStatus::Done;
    run.report.begin();
    for (const std::string& input : arguments.operands) {
        const auto problem = noFolder ? noFolder : problemOf(input, [&] { repairOne(run, input); });
        run.report.finishDeck(input, problem);
        if (!problem || noFolder) continue;
        complain(problem->message);
        status = std::max(status, problem->status);
    }
    run.report.end();
    return status;
}

} // namespace quillmere::cli
