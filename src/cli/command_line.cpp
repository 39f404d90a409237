// One table of options and one of commands: parsing, checking and help read the same rows. The C
// library's getopt_long does the parsing. Held by tests/cli.

#include "cli/command_line.h"

#include "cli/guarded.h"
#include "cli/terminal.h"

#include <algorithm>
#include <array>
#include <getopt.h>

namespace quillmere::cli {

namespace {

struct Option { // NOLINT(clang-analyzer-optin.performance.Padding): rows read best in this order
    char letter;
    const char* name; // of the long form
    const char* value; // what stands behind it; null: nothing
    void (*store)(Arguments& arguments, const char* value);
    std::string_view help;
    bool hasShortForm = false;
};

constexpr Option kOptions[] = {
    {'o', "output", "DATEI", [](Arguments& a, const char* v) { a.output = v; },
        "schreibt in diese Datei", true},
    {'d', "out-dir", "ORDNER", [](Arguments& a, const char* v) { a.outDir = v; },
        "schreibt jedes Deck unter seinem Namen in diesen Ordner"},
    {'k', "keep-work", "ORDNER", [](Arguments& a, const char* v) { a.keepWork = v; },
        "behält die Bereiche als Wml0.htm, Wml1.htm, ... in diesem Ordner"},
    {'p', "pristine", "DATEI", [](Arguments& a, const char* v) { a.pristine = v; },
        "das Deck, wie es einmal geöffnet wurde"},
    {'w', "skins", "ORDNER", [](Arguments& a, const char* v) { a.skins = v; },
        "nimmt die Texte aus diesem Ordner"},
    {'r', "report", nullptr, [](Arguments& a, const char*) { a.report = true; },
        "berichtet, was beim Schreiben verloren geht und was hinzukommt"},
    {'n', "dry-run", nullptr, [](Arguments& a, const char*) { a.dryRun = true; },
        "schreibt nichts und sagt mit dem Bericht, was geschrieben würde"},
    {'b', "backup", nullptr, [](Arguments& a, const char*) { a.backup = true; },
        "behält das alte Deck daneben als DECK.wml.bak (.bak1, ...)"},
    {'j', "json", nullptr, [](Arguments& a, const char*) { a.json = true; },
        "gibt JSON aus (UTF-8)"},
    {'s', "standard-output", nullptr, [](Arguments& a, const char*) { a.standardOutput = true; },
        "schreibt Decks und Bilder nach den öffentlichen Standards"},
    {'h', "help", nullptr, [](Arguments& a, const char*) { a.help = true; }, "zeigt diese Hilfe",
        true},
    {'V', "version", nullptr, [](Arguments& a, const char*) { a.version = true; },
        "zeigt die Version des Programms"},
};

constexpr std::string_view kOptionsOfAll = "shV"; // letters that every command takes

const Option* optionOf(int letter)
{
    const auto* const found = std::find_if(std::begin(kOptions), std::end(kOptions),
        [&](const Option& option) { return option.letter == letter; });
    return found == std::end(kOptions) ? nullptr : found;
}

// With the ':' in front a missing value is told apart from an unknown option.
std::string shortOptions()
{
    std::string letters = ":";
    for (const Option& option : kOptions) {
        if (!option.hasShortForm) continue;
        letters += option.letter;
        if (option.value != nullptr) letters += ':';
    }
    return letters;
}

std::array<option, std::size(kOptions) + 1> longOptions()
{
    std::array<option, std::size(kOptions) + 1> result{};
    std::transform(std::begin(kOptions), std::end(kOptions), result.begin(), [](const Option& row) {
        return option{
            row.name, row.value != nullptr ? required_argument : no_argument, nullptr, row.letter};
    });
    return result;
}

bool begins(const Option& option, const std::string& given)
{
    return given.size() > 2 && ("--" + std::string(option.name)).starts_with(given);
}

/// What is wrong with a long option that getopt_long() did not take.
std::string complaintOfLong(const std::string& word, bool isKnown)
{
    const auto matching = std::count_if(std::begin(kOptions), std::end(kOptions),
        [&](const Option& option) { return begins(option, word.substr(0, word.find('='))); });
    if (isKnown) return "„" + word + "“ nimmt keinen Wert.";
    if (matching > 1) return "„" + word + "“ kann mehreres heißen.";
    return "Unbekannte Option: „" + word + "“.";
}

/// What getopt_long() means by `letter` where it took no option. `word` is what it read last: a
/// long option, or, where short ones stand together in one word, what stands ahead of that.
std::string complaintOf(int letter, const std::string& word)
{
    const Option* const known = optionOf(optopt);
    const bool isKnown = known != nullptr && begins(*known, word.substr(0, word.find('=')));
    const bool isLong = optopt == 0 || isKnown;
    const std::string shown = isLong ? word : std::string("-") + static_cast<char>(optopt);
    if (letter == ':') return "Hinter „" + shown + "“ fehlt der Wert.";
    return isLong ? complaintOfLong(word, isKnown) : "Unbekannte Option: „" + shown + "“.";
}

struct Parsed {
    Arguments arguments;
    std::string letters; // of the options that were given
};

Parsed parse(int count, char** values)
{
    Parsed parsed;
    const auto options = longOptions();
    const std::string letters = shortOptions();
    opterr = 0; // messages are our own
    while (true) {
        const int letter = getopt_long(count, values, letters.c_str(), options.data(), nullptr);
        if (letter == -1) break;
        const Option* const option = optionOf(letter);
        if (option == nullptr) throw BadArguments{complaintOf(letter, values[optind - 1])};
        if (option->value != nullptr && *optarg == '\0')
            throw BadArguments{std::string("„--") + option->name + "“ nennt nichts."};
        if (option->value != nullptr && parsed.letters.find(option->letter) != std::string::npos)
            throw BadArguments{std::string("„--") + option->name + "“ ist zweimal angegeben."};
        option->store(parsed.arguments, optarg);
        parsed.letters += option->letter;
    }
    parsed.arguments.operands.assign(values + optind, values + count);
    return parsed;
}

void requireOptionsOf(const Command& command, const std::string& letters)
{
    for (const char letter : letters) {
        if (command.options.find(letter) != std::string_view::npos) continue;
        if (kOptionsOfAll.find(letter) != std::string_view::npos) continue;
        throw BadArguments{"„" + std::string(command.name) + "“ kennt die Option „--"
            + optionOf(letter)->name + "“ nicht."};
    }
}

std::string optionLine(const Option& option)
{
    std::string text = option.hasShortForm
        ? std::string("  -") + option.letter + ", --" + option.name
        : std::string("      --") + option.name;
    if (option.value != nullptr) text += std::string(" ") + option.value;
    text.resize(std::max<std::size_t>(text.size() + 2, 30), ' ');
    return text + std::string(option.help) + "\n";
}

std::string generalHelp()
{
    std::string text = "Aufruf: quillmere-cli BEFEHL [OPTION]... [ANGABE]...\n"
                       "WML-Decks ohne Fenster lesen, bereinigen und schreiben.\n\nBefehle:\n";
    for (const Command& command : commands()) {
        std::string name = "  " + std::string(command.name);
        name.resize(14, ' ');
        text += name + std::string(command.summary) + "\n";
    }
    text += "\nFür alle Befehle:\n";
    for (const char letter : kOptionsOfAll)
        text += optionLine(*optionOf(letter));
    return text
        + "\nEndet mit 0: getan; 1: falsche Angaben; 2: eine Datei war nicht zu lesen oder zu\n"
          "schreiben; 3: das Deck oder der Text ist nicht zu verarbeiten. Wo etwas fehlschlägt,\n"
          "wird nichts geschrieben. Mehr: quillmere-cli BEFEHL --help\n";
}

std::string helpFor(const Command& command)
{
    std::string text = "Aufruf: quillmere-cli " + std::string(command.name) + " "
        + std::string(command.synopsis) + "\n" + std::string(command.summary) + "\n\n"
        + std::string(command.details) + "\n\nOptionen:\n";
    for (const Option& option : kOptions) {
        const std::string letters = std::string(command.options) + std::string(kOptionsOfAll);
        if (letters.find(option.letter) != std::string::npos) text += optionLine(option);
    }
    return text;
}

const Command& commandNamed(const std::string& name)
{
    const auto all = commands();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const Command& command) { return command.name == name; });
    if (found == all.end()) throw BadArguments{"Unbekannter Befehl: „" + name + "“."};
    return *found;
}

ExitStatus runCommand(const Command& command, const Parsed& parsed)
{
    try {
        requireOptionsOf(command, parsed.letters);
        return command.run(parsed.arguments);
    } catch (BadArguments& bad) {
        bad.command = command.name;
        throw;
    }
}

ExitStatus runParsed(Parsed parsed)
{
    Arguments& arguments = parsed.arguments;
    if (arguments.version) {
        print("quillmere-cli " QUILLMERE_VERSION "\n");
        return ExitStatus::Done;
    }
    if (arguments.operands.empty()) {
        if (!arguments.help) throw BadArguments{"Es fehlt der Befehl."};
        print(generalHelp());
        return ExitStatus::Done;
    }
    const Command& command = commandNamed(arguments.operands.front());
    arguments.operands.erase(arguments.operands.begin());
    if (arguments.help) {
        print(helpFor(command));
        return ExitStatus::Done;
    }
    return runCommand(command, parsed);
}

} // namespace

ExitStatus runCommandLine(int count, char** values)
{
    return guarded("", [&] {
        const ExitStatus status = runParsed(parse(count, values));
        finishOutput();
        return status;
    });
}

} // namespace quillmere::cli
