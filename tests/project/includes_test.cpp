#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace quillmere {
namespace {

using Arrows = std::map<std::string, std::set<std::string>>;

Arrows arrowsOfArchitecture()
{
    std::ifstream file(QUILLMERE_SOURCE_DIR "/ARCHITECTURE.md");
    Arrows arrows;
    const std::regex row("^([a-z]+) ->(.*)$");
    std::smatch match;
    for (std::string line; std::getline(file, line);) {
        if (!std::regex_match(line, match, row)) continue;
        std::istringstream targets(match[2].str());
        auto& allowed = arrows[match[1].str()];
        allowed.insert(match[1].str());
        for (std::string target; targets >> target;)
            allowed.insert(target);
    }
    return arrows;
}

TEST(Includes, PointAlongTheArrowsOfTheArchitecture)
{
    const Arrows arrows = arrowsOfArchitecture();
    ASSERT_FALSE(arrows.empty());
    const std::filesystem::path sources = QUILLMERE_SOURCE_DIR "/src";
    const std::regex include("^#include \"([a-z]+)/.*$");
    std::smatch match;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        const auto extension = entry.path().extension();
        if (extension != ".h" && extension != ".cpp") continue;
        const std::string folder = entry.path().lexically_relative(sources).begin()->string();
        ASSERT_TRUE(arrows.contains(folder)) << folder << " stands in no row";
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            if (!std::regex_match(line, match, include)) continue;
            EXPECT_TRUE(arrows.at(folder).contains(match[1].str())) << entry.path() << ": " << line;
        }
    }
}

TEST(Includes, TheCoreIsFreeOfQt)
{
    for (const auto& entry :
        std::filesystem::recursive_directory_iterator(QUILLMERE_SOURCE_DIR "/src")) {
        const std::string name = entry.path().filename().string();
        if (!entry.is_regular_file() || name.find("_qt.") != std::string::npos) continue;
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);)
            EXPECT_FALSE(line.starts_with("#include <Q")) << entry.path() << ": " << line;
    }
}

} // namespace
} // namespace quillmere
