#pragma once

#include "cli/command_line.h"

// The routines behind the commands; commands.cpp has the table that names them. Each throws Failure
// or BadArguments; a deck that fails is then as it was.

namespace quillmere::cli {

ExitStatus runRepair(const Arguments& arguments);
ExitStatus runAreas(const Arguments& arguments);
ExitStatus runStep(const Arguments& arguments);
ExitStatus runWbmpShow(const Arguments& arguments);
ExitStatus runWords(const Arguments& arguments);

} // namespace quillmere::cli
