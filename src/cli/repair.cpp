// Each deck gets a session of its own, so that one deck cannot touch the next and memory stays that
// of one deck. Where the results go to another folder, each step is done for some decks in a row:
// the waits for the disk make the processor forget the program, which costs more time than the
// repair, and what is written together is flushed together. Held by tests/cli/repair_test.cpp.

#include "cli/commands.h"
#include "cli/core_session.h"
#include "cli/deck_check.h"
#include "cli/guarded.h"
#include "cli/repair_plan.h"
#include "cli/repair_report.h"
#include "cli/standard_repair.h"
#include "cli/terminal.h"
#include "document/changes/deck_changes.h"
#include "document/changes/deck_changes_report.h"
#include "document/deck_repair.h"
#include "document/deck_store.h"
#include "document/platform/paths.h"
#include "document/standard/deck_file.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <set>
#include <utility>

namespace quillmere::cli {

namespace {

constexpr std::size_t kDecksAtOnce = 32;
constexpr std::size_t kBytesAtOnce = 0x10000;

/// A deck that waits to be written, or what kept it from being repaired.
struct RepairedDeck {
    std::string input;
    std::string written;
    RepairPlan plan;
    std::vector<std::string> areaTexts; ///< for the work files of the plan
    std::optional<DeckChangesReport> changes; ///< where they are told
    std::vector<PlacedMend> mends;
    std::optional<std::string> doubt; ///< whether it was a deck
    std::optional<DeckFault> fault; ///< of what is written
    std::optional<FileReplacement> file; ///< once it stands beside the old one
    std::optional<Problem> problem;
};

/// What the decks of one call have in common.
struct Run {
    const Arguments& arguments;
    RepairPlanner planner;
    RepairReport report;
    FileReplacements files;
    std::vector<RepairedDeck> waiting; ///< to be written
    std::size_t waitingBytes = 0;
    ExitStatus status = ExitStatus::Done;
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

std::string repairedAgain(const std::string& written, const std::string& path)
{
    CoreSession core(false);
    return repairedDeck(core.session, written, SplitPath(path).directory);
}

// No file is written over with what was made of something that is no deck.
std::optional<std::string> checkIsDeck(
    const Run& run, const std::string& input, std::string_view text)
{
    auto doubt = doubtAbout(input, text);
    if (doubt && run.arguments.output != "-" && samePlace(run.planner.outputPath(input), input))
        throw FileFailure(*doubt + " Es wurde nichts geändert; umwandeln lässt sie sich mit -o.");
    return doubt;
}

std::vector<std::string> areaTextsOf(const CoreSession& core)
{
    std::vector<std::string> texts;
    for (std::size_t area = 0; area < areaCount(core.session.deck); ++area) {
        const DeckRecord& record = core.session.deck[area];
        texts.push_back(core.workFiles.read(record.designDir + record.designFile));
    }
    return texts;
}

/// The road without loss, which needs no areas.
void repairByMends(const Run& run, RepairedDeck& deck)
{
    auto repair = repairStandard(readStandardFile(deck.input));
    deck.doubt = checkIsDeck(run, deck.input, repair.read);
    if (run.arguments.keepWork) {
        CoreSession core(true);
        const auto [directory, name] = SplitPath(deck.input);
        LoadDeck(core.session, {name, directory, {}, {}});
        deck.areaTexts = areaTextsOf(core);
    }
    deck.plan = run.planner.plan(deck.input, deck.areaTexts.size(), repair.written);
    if (!run.arguments.json) deck.fault = repair.fault;
    if (run.report.wanted()) deck.changes = changesOf(repair);
    deck.written = std::move(repair.written);
    deck.mends = std::move(repair.mends);
}

void repairOne(const Run& run, RepairedDeck& deck)
{
    const Arguments& arguments = run.arguments;
    if (arguments.standardOutput) return repairByMends(run, deck);
    CoreSession core(false);
    deck.written = repairInto(core, deck.input);
    deck.doubt = checkIsDeck(run, deck.input, readDeckOf(core.session));
    deck.plan = run.planner.plan(deck.input, areaCount(core.session.deck), deck.written);
    if (!deck.plan.workFiles.empty()) deck.areaTexts = areaTextsOf(core);
    if (!arguments.json) deck.fault = deckFault(deck.written); // the document tells it
    if (!run.report.wanted()) return;
    deck.changes = DeckChanges(readDeckOf(core.session), deck.written);
    deck.changes->stable = repairedAgain(deck.written, deck.input) == deck.written;
}

/// Writes the deck beside the file that it will replace.
void beginWriting(Run& run, RepairedDeck& deck)
{
    if (deck.changes)
        run.report.tell({deck.input, *deck.changes, deck.mends, deck.plan, deck.written});
    if (!run.arguments.dryRun) deck.file = carryOut(deck.plan, deck.areaTexts, deck.written);
}

/// Does a step with each deck that has no problem yet.
template <typename Step> void forEachSound(std::vector<RepairedDeck>& decks, Step step)
{
    for (RepairedDeck& deck : decks) {
        if (!deck.problem) deck.problem = problemOf(deck.input, [&] { step(deck); });
        if (deck.problem) deck.file.reset();
    }
}

/// Says all that is to be said of a deck in the end.
void tellEnd(Run& run, const RepairedDeck& deck)
{
    if (deck.doubt) complain(*deck.doubt);
    if (!deck.problem && deck.fault)
        complain(deck.input + ": " + toUtf8(describeFault(*deck.fault)));
    run.report.finishDeck(deck.input, deck.problem);
    if (!deck.problem) return;
    complain(deck.problem->message);
    run.status = std::max(run.status, deck.problem->status);
}

void writeWaiting(Run& run)
{
    forEachSound(run.waiting, [&](RepairedDeck& deck) { beginWriting(run, deck); });
    forEachSound(run.waiting, [](RepairedDeck& deck) {
        if (deck.file) deck.file->flush();
    });
    forEachSound(run.waiting, [&](RepairedDeck& deck) {
        if (deck.file) run.files.finish(*deck.file);
    });
    const auto written = std::exchange(run.waiting, {});
    run.waitingBytes = 0;
    for (const RepairedDeck& deck : written)
        tellEnd(run, deck);
}

void repairAll(Run& run)
{
    // A deck that is written in its place may be a later one as well, by another name, and what is
    // told of a deck before and behind its writing stands together.
    const bool isAlone = !run.arguments.outDir || run.report.wanted();
    const auto decksAtOnce = isAlone ? 1 : kDecksAtOnce;
    for (const std::string& input : run.arguments.operands) {
        RepairedDeck& deck = run.waiting.emplace_back();
        deck.input = input;
        deck.problem = problemOf(input, [&] { repairOne(run, deck); });
        run.waitingBytes += deck.written.size();
        const bool isFull = run.waiting.size() >= decksAtOnce || run.waitingBytes > kBytesAtOnce;
        if (isFull) writeWaiting(run);
    }
    writeWaiting(run);
}

/// Without a folder for the results no deck is looked at.
void refuseAll(Run& run, const Problem& problem)
{
    complain(problem.message); // once for all decks
    run.status = problem.status;
    for (const std::string& input : run.arguments.operands)
        run.report.finishDeck(input, problem);
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

void makeOutputDirectory(const Run& run)
{
    if (!run.arguments.outDir || run.arguments.dryRun) return;
    AssentingPrompter unasked;
    MakeDirectories(run.planner.outputDirectory(), false, unasked);
}

} // namespace

ExitStatus runRepair(const Arguments& arguments)
{
    checkArguments(arguments);
    Run run{arguments, RepairPlanner(arguments), RepairReport(arguments), {}, {}};
    const auto noFolder = problemOf("", [&] { makeOutputDirectory(run); });
    run.report.begin();
    if (noFolder) {
        refuseAll(run, *noFolder);
    } else {
        repairAll(run);
    }
    run.report.end();
    return run.status;
}

} // namespace quillmere::cli
