#pragma once

#include "cli/command_line.h"
#include "document/deck.h"
#include "document/platform/files.h"
#include "document/platform/work_files.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Where the result of a repair goes. All that can be wrong with it is found ahead of the first
// byte that is written.

namespace quillmere::cli {

struct RepairPlan {
    std::string output; ///< "-": standard output
    std::optional<std::string> backup; ///< a new name for the bytes that `output` has now
    std::vector<std::string> workFiles; ///< one for each area; empty: they are not kept
};

/// The directory of `--out-dir` with its separator; "" without the option.
[[nodiscard]] std::string outputDirectory(const Arguments& arguments);

/// The file that the result for the deck `input` goes to.
[[nodiscard]] std::string outputPath(const Arguments& arguments, const std::string& input);

/// Whether both paths lead to one file, which need not be there yet.
[[nodiscard]] bool samePlace(const std::string& left, const std::string& right);

/// Where `written`, the repaired deck `input`, and its areas' work files go. Throws BadArguments
/// where a work file would be the deck or the result, and where what is no ordinary file would be
/// replaced by itself; FileFailure where it is seen that the result cannot be written, as far as a
/// dry run or work files ask for it.
[[nodiscard]] RepairPlan planRepair(const Arguments& arguments, const std::string& input,
    std::size_t areas, std::string_view written);

/// Does as planned: work files, backup, deck, in this order. `deck` is the open deck, whose design
/// work files are in `files`. Throws FileFailure; the deck's file is then as it was.
void carryOut(const RepairPlan& plan, const Deck& deck, WorkFiles& files, std::string_view written,
    FileReplacements& replacements);

} // namespace quillmere::cli
