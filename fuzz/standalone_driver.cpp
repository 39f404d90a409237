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
namespace fs = std::filesystem;

void runOne(const std::string& bytes)
{
    const std::vector<std::uint8_t> copy(
        bytes.begin(), bytes.end()); // its own block, so that reads
    (void)LLVMFuzzerTestOneInput(copy.data(), copy.size()); // behind the end are seen
}

void addSeeds(std::vector<std::string>& seeds, const fs::path& path)
{
    if (fs::is_directory(path)) {
        for (const auto& entry : fs::directory_iterator(path))
            addSeeds(seeds, entry.path());
    } else if (std::ifstream file(path, std::ios::binary); file) {
        seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
}

// One of: a new byte, a cut, a part said twice, a part of another seed.
std::string mutated(std::string text, const std::string& other, std::mt19937& random)
{
    const auto place = [&random](const std::string& in) { return random() % (in.size() + 1); };
    const std::size_t at = place(text);
    const std::size_t length = random() % 24;
    switch (random() % 4) {
    case 0:
        return text.insert(at, 1, static_cast<char>(random() % 256));
    case 1:
        return text.erase(at, length);
    case 2:
        return text.insert(at, text.substr(at, length));
    default:
        return text.insert(at, other.substr(place(other), length));
    }
}

} // namespace

int main(int count, char** values)
{
    int seconds = 1;
    std::vector<std::string> seeds{std::string()};
    for (int i = 1; i < count; ++i) {
        if (std::string(values[i]) == "--seconds" && i + 1 < count) {
            seconds = std::atoi(values[++i]); // NOLINT(cert-err34-c): 0 runs the seeds alone
        } else {
            addSeeds(seeds, values[i]);
        }
    }
    for (const std::string& seed : seeds)
        runOne(seed);
    std::mt19937 random(20000101); // the same inputs in each run
    std::size_t runs = seeds.size();
    for (const auto end = Clock::now() + std::chrono::seconds(seconds); Clock::now() < end;
         ++runs) {
        std::string text = seeds[random() % seeds.size()];
        for (std::size_t times = 1 + random() % 8; times > 0; --times)
            text = mutated(std::move(text), seeds[random() % seeds.size()], random);
        runOne(text);
    }
    std::printf("%s: %zu inputs, no failure\n", fs::path(values[0]).filename().c_str(), runs);
    return 0;
}
