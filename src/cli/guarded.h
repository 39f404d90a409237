#pragma once

#include "cli/command_line.h"

#include <functional>
#include <optional>
#include <string>

namespace quillmere::cli {

/// What kept a command, or a part of it, from being done.
struct Problem {
    ExitStatus status = ExitStatus::RunFailure;
    std::string message; ///< UTF-8
    std::string command = {}; ///< of bad arguments: whose help tells more, as far as it is known
};

/// Runs `action` and returns what it throws as a problem; nullopt where it is done. `about` (UTF-8,
/// such as a file's name) stands ahead of a message that does not name its file itself, unless it
/// is empty. Lets LostOutput pass.
[[nodiscard]] std::optional<Problem> problemOf(
    const std::string& about, const std::function<void()>& action);

/// Runs `action` and returns its status. What it throws becomes a message on standard error, as
/// with problemOf(), and the status that goes with it.
[[nodiscard]] ExitStatus guarded(
    const std::string& about, const std::function<ExitStatus()>& action);

} // namespace quillmere::cli
