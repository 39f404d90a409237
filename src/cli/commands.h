#pragma once

#include "cli/command_line.h"

// The routines behind the commands; commands.cpp has the table that names them. Each throws Failure
// or BadArguments and has written nothing then.

namespace quillmere::cli {

ExitStatus runRepair(const Arguments& arguments);
ExitStatus runAreas(const Arguments& arguments);
ExitStatus runStep(const Arguments& arguments);
ExitStatus runWbmpShow(const Arguments& arguments);
ExitStatus runWords(const Arguments& arguments);

/// The names of the operations that `step` knows, each with its operands, a line each.
[[nodiscard]] std::string stepOperations();

} // namespace quillmere::cli
