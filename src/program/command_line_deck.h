#pragma once

#include "document/platform/paths.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quillmere {

/// The deck that a command line names. All of it is one path, from which double quotes are taken
/// out; it counts where it has a directory and a name of more than four characters that ends in
/// "wml", in any case.
[[nodiscard]] std::optional<SplitPathResult> deckOfCommandLine(std::string_view commandLine);

/// The arguments as one command line. The bare name of a file that is there gets the current
/// directory, since a shell gives it as it was typed.
[[nodiscard]] std::string commandLineOf(
    std::span<char* const> arguments, const std::string& currentDirectory);

} // namespace quillmere
