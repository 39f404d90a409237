// Held by start_test.cpp.

#include "program/command_line_deck.h"

#include "document/platform/files.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::string_view kDeckEnd = "wml";
constexpr std::size_t kTooShort = 4;

} // namespace

std::optional<SplitPathResult> deckOfCommandLine(std::string_view commandLine)
{
    std::string path(trimBlanks(commandLine));
    std::erase(path, '"');
    // Not SplitPath(), which would cut a name with a backslash.
    const auto nameAt = path.rfind(separator(kNativePathStyle)) + 1; // one behind not found is 0
    SplitPathResult deck{path.substr(0, nameAt), path.substr(nameAt)};
    const bool isDeck = !deck.directory.empty() && deck.name.size() > kTooShort
        && lowerCase(deck.name).ends_with(kDeckEnd);
    return isDeck ? std::optional(std::move(deck)) : std::nullopt;
}

std::string commandLineOf(std::span<char* const> arguments, const std::string& currentDirectory)
{
    std::string line;
    for (const char* argument : arguments)
        line.append(line.empty() ? "" : " ").append(argument);
    const bool isBareName = !line.empty() && line.find('/') == line.npos;
    return isBareName && fileExists(currentDirectory + line) ? currentDirectory + line : line;
}

} // namespace quillmere
