// make-decks COUNT DIR [--seed N] [--min BYTES] [--max BYTES] [--broken SHARE] [--faults RATE]
// writes COUNT generated decks as DIR/deck00001.wml and so on, SHARE of them broken.

#include "generator/deck_generator.h"
#include "support/small_random.h"

#include <charconv>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace quillmere::bench;
using quillmere::test::SmallRandom;

struct Arguments {
    std::vector<std::string> plain;
    std::map<std::string, double> options{
        {"--seed", 1}, {"--min", 1024}, {"--max", 2048}, {"--broken", 1.0 / 3}, {"--faults", 0.03}};
};

double number(const std::string& text)
{
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc{} || read.ptr != text.data() + text.size() || value < 0)
        throw std::invalid_argument("no number: " + text);
    return value;
}

Arguments parse(const std::vector<std::string>& words)
{
    Arguments arguments;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto option = arguments.options.find(words[i]);
        if (option == arguments.options.end()) {
            arguments.plain.push_back(words[i]);
        } else if (i + 1 < words.size()) {
            option->second = number(words[++i]);
        } else {
            throw std::invalid_argument("value missing: " + words[i]);
        }
    }
    if (arguments.plain.size() != 2)
        throw std::invalid_argument("usage: make-decks COUNT DIR [--seed N] [--min BYTES] "
                                    "[--max BYTES] [--broken SHARE] [--faults RATE]");
    return arguments;
}

std::string deckName(std::size_t index)
{
    const auto digits = std::to_string(index + 1);
    return "deck" + std::string(5 - std::min<std::size_t>(5, digits.size()), '0') + digits + ".wml";
}

void writeDecks(const Arguments& arguments)
{
    const auto& options = arguments.options;
    const auto least = static_cast<std::size_t>(options.at("--min"));
    const auto most = std::max(least + 1, static_cast<std::size_t>(options.at("--max")));
    const auto count = static_cast<std::size_t>(number(arguments.plain[0]));
    const std::filesystem::path directory = arguments.plain[1];
    std::filesystem::create_directories(directory);
    SmallRandom random(static_cast<std::uint64_t>(options.at("--seed")));
    for (std::size_t i = 0; i < count; ++i) {
        DeckOptions deck;
        deck.targetBytes = least + random.below(most - least);
        deck.brokenness = random.chance(options.at("--broken")) ? options.at("--faults") : 0;
        std::ofstream out(directory / deckName(i), std::ios::binary);
        out << generateDeck(random.next(), deck) << std::flush;
        if (!out) throw std::runtime_error("cannot write in " + directory.string());
    }
}

} // namespace

int main(int argc, char** argv)
{
    try {
        writeDecks(parse({argv + 1, argv + argc}));
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "make-decks: " << failure.what() << '\n';
        return 1;
    }
}
