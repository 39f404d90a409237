#include "app/settings.h"
#include "app/word_resources.h"
#include "cli/commands.h"
#include "cli/terminal.h"
#include "document/platform/paths.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"

#include <charconv>

namespace quillmere::cli {

namespace {

int numberOf(const std::string& text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end)
        throw BadArguments{"„" + text + "“ ist keine Nummer."};
    return number;
}

std::string skinsDirectory(const Arguments& arguments)
{
    return arguments.skins ? NormalisePath(*arguments.skins) : AppDirectory() + "Skins/";
}

void printAll(const WordResources& words)
{
    int id = 0;
    for (const WordEntry& entry : words.table()) {
        if (!entry.text.empty()) print(std::to_string(id) + "\t" + toUtf8(entry.text) + "\n");
        ++id;
    }
}

} // namespace

ExitStatus runWords(const Arguments& arguments)
{
    MemorySettings settings;
    settings.WriteSetting("Skins", skinsDirectory(arguments));
    WordResources words;
    words.LoadWordResources(settings);
    if (words.table().empty())
        throw FileFailure("In „" + skinsDirectory(arguments)
            + "“ gibt es keine Texte (ResWords.ini oder ResWords.res).");
    if (arguments.operands.empty()) {
        printAll(words);
        return ExitStatus::Done;
    }
    const int id = numberOf(arguments.operands.front());
    if (id < 0 || static_cast<std::size_t>(id) >= words.table().size())
        throw BadArguments{"Einen Text mit der Nummer " + std::to_string(id)
            + " gibt es nicht; der letzte hat die Nummer "
            + std::to_string(words.table().size() - 1) + "."};
    std::vector<std::string> texts;
    for (std::size_t i = 1; i < arguments.operands.size(); ++i)
        texts.push_back(fromUtf8(arguments.operands[i]));
    const std::vector<std::string_view> gaps(texts.begin(), texts.end());
    print(toUtf8(filledWord(words.table(), id, gaps)) + "\n");
    return ExitStatus::Done;
}

} // namespace quillmere::cli
