#pragma once

#include "cli/command_line.h"

#include <functional>
#include <string>

namespace quillmere::cli {

/// Runs `action` and turns what it throws into a message on standard error, with `about` (UTF-8,
/// such as a file's name) ahead of it unless that is empty, and into the status that goes with it.
[[nodiscard]] ExitStatus guarded(
    const std::string& about, const std::function<ExitStatus()>& action);

} // namespace quillmere::cli
