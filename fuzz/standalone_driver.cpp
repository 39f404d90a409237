// Drives a fuzz target without libFuzzer: --seconds N [FILE or FOLDER]... runs every file, then
// random mutations of them until the time is over. No coverage guides it; libFuzzer is for the long
// runs.

#include "fuzz_target.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

void runOne(const std::string& bytes)
{
    const std::vector<std::uint8_t> copy(
        bytes.begin(), bytes.end()); // its own block, so that reads
    (void)LLVMFuzzerTestOneInput(copy.data(), copy.size()); // behind the end are seen
}

void addFile(std::vector<std::string>& seeds, const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

void addSeeds(std::vector<std::string>& seeds, const std::filesystem::path& path)
{
    if (!std::filesystem::is_directory(path)) {
        if (std::filesystem::exists(path)) addFile(seeds, path);
        return;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) addFile(seeds, entry.path());
    }
}

std::size_t below(std::mt19937& random, std::size_t end)
{
    return end == 0 ? 0 : random() % end;
}

// One of: a changed byte, a cut, a part said twice, a part of another seed.
std::string mutated(std::string text, const std::vector<std::string>& seeds, std::mt19937& random)
{
    const std::size_t at = below(random, text.size() + 1);
    const std::size_t length = below(random, 24);
    switch (random() % 4) {
    case 0:
        text.insert(at, 1, static_cast<char>(random() % 256));
        break;
    case 1:
        text.erase(at, length);
        break;
    case 2:
        text.insert(at, text.substr(at, length));
        break;
    default: {
        const std::string& other = seeds[below(random, seeds.size())];
        text.insert(at, other.substr(below(random, other.size() + 1), length));
    }
    }
    return text;
}

} // namespace

int main(int count, char** values)
{
    int seconds = 1;
    std::vector<std::string> seeds{std::string()};
    for (int i = 1; i < count; ++i) {
        const std::string word = values[i];
        if (word == "--seconds" && i + 1 < count) {
            seconds = std::atoi(values[++i]); // NOLINT(cert-err34-c): 0 runs the seeds alone
        } else {
            addSeeds(seeds, word);
        }
    }
    for (const std::string& seed : seeds)
        runOne(seed);
    std::mt19937 random(20000101); // the same inputs in each run
    std::size_t runs = seeds.size();
    for (const auto end = Clock::now() + std::chrono::seconds(seconds); Clock::now() < end;
         ++runs) {
        std::string text = seeds[below(random, seeds.size())];
        for (std::size_t times = 1 + random() % 8; times > 0; --times)
            text = mutated(std::move(text), seeds, random);
        runOne(text);
    }
    std::printf(
        "%s: %zu inputs, no failure\n", std::filesystem::path(values[0]).filename().c_str(), runs);
    return 0;
}
