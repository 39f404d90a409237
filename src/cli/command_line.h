#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::cli {

/// What a call of the program ends with.
enum class ExitStatus {
    Done = 0,
    BadArguments = 1,
    FileTrouble = 2, ///< a file could not be read or written
    RunFailure = 3, ///< the deck or text cannot be processed
};

/// Arguments that the program does not understand; the text is UTF-8.
struct BadArguments {
    std::string message;
    std::string command = {}; ///< whose help tells more; "": the program's
};

/// What stands on the command line, options sorted out. Options may stand anywhere.
struct Arguments {
    std::vector<std::string> operands; ///< behind the command's name
    std::optional<std::string> output; ///< -o
    std::optional<std::string> outDir; ///< --out-dir
    std::optional<std::string> keepWork; ///< --keep-work
    std::optional<std::string> pristine; ///< --pristine
    std::optional<std::string> skins; ///< --skins
    bool report = false;
    bool json = false;
    bool dryRun = false;
    bool backup = false;
    bool standardOutput = false;
    bool help = false;
    bool version = false;
};

/// One command of the program.
struct Command {
    std::string_view name;
    std::string_view synopsis; ///< operands and options, behind the name
    std::string_view summary; ///< one line
    std::string_view options; ///< letters of the options that it takes, see kOptions
    std::string_view details; ///< for its own help
    ExitStatus (*run)(const Arguments& arguments);
};

/// All commands, in the order of the help.
[[nodiscard]] std::span<const Command> commands();

/// Reads the command line and runs the command that it names. Messages go to standard error in the
/// terminal's encoding.
[[nodiscard]] ExitStatus runCommandLine(int count, char** values);

} // namespace quillmere::cli
