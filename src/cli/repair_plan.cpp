// Held by tests/cli/repair_test.cpp.

#include "cli/repair_plan.h"

#include "cli/core_session.h"
#include "cli/terminal.h"
#include "document/platform/paths.h"

#include <filesystem>

namespace quillmere::cli {

namespace {

namespace fs = std::filesystem;

std::string freeBackupName(const std::string& path)
{
    const std::string first = path + ".bak";
    std::string name = first;
    std::error_code ignored;
    for (int i = 1; fs::symlink_status(name, ignored).type() != fs::file_type::not_found; ++i)
        name = first + std::to_string(i);
    return name;
}

std::vector<std::string> workFileNames(const std::string& directory, std::size_t areas)
{
    std::vector<std::string> names;
    for (std::size_t area = 0; area < areas; ++area)
        names.push_back(NormalisePath(directory) + "Wml" + std::to_string(area) + ".htm");
    return names;
}

void requireOthersThan(const RepairPlan& plan, const std::string& input)
{
    for (const std::string& name : plan.workFiles) {
        const bool isInput = samePlace(name, input);
        if (!isInput && (plan.output == "-" || !samePlace(name, plan.output))) continue;
        throw BadArguments{"Die Arbeitsdatei „" + name + "“ käme an die Stelle "
            + (isInput ? "des Decks" : "des Ergebnisses")
            + "; --keep-work braucht einen anderen Ordner. Es wurde nichts geändert."};
    }
}

/// Whether the folder comes about ahead of the result in it.
bool isStillToBeMade(const std::string& folder, const Arguments& arguments)
{
    std::error_code ignored;
    if (folder.empty() || fs::is_directory(folder, ignored)) return false;
    if (arguments.outDir) return true;
    return arguments.keepWork
        && NormalisePath(*arguments.keepWork).starts_with(NormalisePath(folder));
}

void requireWritable(const Arguments& arguments, const RepairPlan& plan)
{
    if (plan.output == "-") return;
    if (isStillToBeMade(SplitPath(plan.output).directory, arguments)) return;
    requireReplaceable(plan.output);
}

void keepWorkFiles(const RepairPlan& plan, const std::vector<std::string>& areaTexts)
{
    if (plan.workFiles.empty()) return;
    AssentingPrompter unasked;
    MakeDirectories(SplitPath(plan.workFiles.front()).directory, false, unasked);
    for (std::size_t area = 0; area < plan.workFiles.size(); ++area)
        replaceFile(plan.workFiles[area], areaTexts[area]);
}

} // namespace

RepairPlanner::RepairPlanner(const Arguments& arguments)
    : arguments_(arguments)
    , outputDirectory_(arguments.outDir ? NormalisePath(*arguments.outDir) : "")
{
}

std::string RepairPlanner::outputPath(const std::string& input) const
{
    if (arguments_.output) return *arguments_.output;
    if (arguments_.outDir) return outputDirectory_ + SplitPath(input).name;
    return input;
}

bool samePlace(const std::string& left, const std::string& right)
{
    std::error_code ignored;
    if (fs::equivalent(left, right, ignored)) return true;
    std::error_code error; // of a path that leads nowhere, which is the place of nothing
    const auto place = [&](const std::string& path) {
        return fs::weakly_canonical(fs::absolute(path, error), error); // folders may be missing yet
    };
    return place(left) == place(right) && !error;
}

RepairPlan RepairPlanner::plan(
    const std::string& input, std::size_t areas, std::string_view written) const
{
    RepairPlan plan{outputPath(input), {}, {}};
    if (plan.output == input && !regularFileExists(input))
        throw BadArguments{
            "„" + input + "“ ist keine gewöhnliche Datei; das Ergebnis braucht -o oder --out-dir."};
    // What stays as it is needs no second copy, however often the call is repeated.
    if (arguments_.backup && readFile(input) != written) plan.backup = freeBackupName(input);
    if (arguments_.keepWork) plan.workFiles = workFileNames(*arguments_.keepWork, areas);
    requireOthersThan(plan, input);
    // Work files must not be left of a deck that then cannot be written.
    if (arguments_.dryRun || arguments_.keepWork) requireWritable(arguments_, plan);
    return plan;
}

std::optional<FileReplacement> carryOut(
    const RepairPlan& plan, const std::vector<std::string>& areaTexts, std::string_view written)
{
    keepWorkFiles(plan, areaTexts);
    if (plan.output == "-") {
        printBytes(written);
        return std::nullopt;
    }
    if (!plan.backup) return FileReplacement(plan.output, written);
    createFile(*plan.backup, readFile(plan.output), plan.output);
    try {
        replaceFile(plan.output, written);
    } catch (const FileFailure&) {
        removeFile(*plan.backup); // the deck has its bytes still
        throw;
    }
    return std::nullopt;
}

} // namespace quillmere::cli
