#pragma once

#include "cli/command_line.h"
#include "document/platform/files.h"

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

/// Whether both paths lead to one file, which need not be there yet.
[[nodiscard]] bool samePlace(const std::string& left, const std::string& right);

/// Plans the repairs of one call, whose arguments must outlive it.
class RepairPlanner {
public:
    explicit RepairPlanner(const Arguments& arguments);

    /// The directory of `--out-dir` with its separator; "" without the option.
    [[nodiscard]] const std::string& outputDirectory() const { return outputDirectory_; }
    /// The file that the result for the deck `input` goes to.
    [[nodiscard]] std::string outputPath(const std::string& input) const;
    /// Where `written`, the repaired deck `input`, and its areas' work files go. Throws
    /// BadArguments where a work file would be the deck or the result, and where what is no
    /// ordinary file would be replaced by itself; FileFailure where it is seen that the result
    /// cannot be written, as far as a dry run or work files ask for it.
    [[nodiscard]] RepairPlan plan(
        const std::string& input, std::size_t areas, std::string_view written) const;

private:
    const Arguments& arguments_;
    std::string outputDirectory_;
};

/// Does as planned: work files, backup, deck, in this order. `areaTexts` is what goes into the work
/// files. Returns what is still to be flushed and to take the deck's place, if anything is. Throws
/// FileFailure; the deck's file is then as it was.
[[nodiscard]] std::optional<FileReplacement> carryOut(
    const RepairPlan& plan, const std::vector<std::string>& areaTexts, std::string_view written);

} // namespace quillmere::cli
