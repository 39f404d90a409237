#include "cli/commands.h"
#include "cli/terminal.h"
#include "app/settings.h"
#include "app/word_resources.h"
#include "document/paths.h"
#include "document/windows1252.h"

#include <charconv>

namespace quillmere::cli {

namespace {

int numberOf(const std::string& text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end)
        throw BadArguments {"„" + text + "“ ist keine Nummer."};
    return number;
}

} // namespace

ExitStatus runWords(const Arguments& arguments)
{
    // to be joined with the word resources
    return ExitStatus::Done;
}

} // namespace quillmere::cli
