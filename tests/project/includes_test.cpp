#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace quillmere {
namespace {

/// Calls `use` with the groups of each line of the file that the expression matches.
template <class Use>
void forEachMatch(const std::filesystem::path& path, const char* expression, const Use& use)
{
    const std::regex regex(expression);
    std::smatch match;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        if (std::regex_match(line, match, regex)) use(match);
}

TEST(Includes, PointAlongTheArrowsOfTheArchitectureAndToQtFromItsFilesOnly)
{
    std::map<std::string, std::set<std::string>> arrows;
    forEachMatch(QUILLMERE_SOURCE_DIR "/ARCHITECTURE.md", "([a-z/]+) ->(.*)", [&](const auto& row) {
        std::istringstream targets(row[2].str());
        arrows[row[1]].insert(row[1]);
        for (std::string target; targets >> target;)
            arrows[row[1]].insert(target);
    });
    ASSERT_FALSE(arrows.empty());
    std::set<std::string> qtFolders;
    forEachMatch(QUILLMERE_SOURCE_DIR "/ARCHITECTURE.md", R"(\| `src/([a-z/]+)` \|.*\| yes \|)",
        [&](const auto& row) { qtFolders.insert(row[1]); });
    const std::filesystem::path sources = QUILLMERE_SOURCE_DIR "/src";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        const auto folder = entry.path().lexically_relative(sources).parent_path().string();
        forEachMatch(entry.path(), "#include \"([a-z/]+)/[^/]*", [&](const auto& include) {
            const std::string& target = include[1].str();
            const bool allowed = arrows[folder].contains(target)
                || arrows[folder].contains(target.substr(0, target.find('/')));
            EXPECT_TRUE(allowed) << entry.path() << include.str();
        });
        const bool mayUseQt = qtFolders.contains(folder)
            || entry.path().filename().string().find("_qt.") != std::string::npos;
        forEachMatch(entry.path(), "#include <Q.*",
            [&](const auto& include) { EXPECT_TRUE(mayUseQt) << entry.path() << include.str(); });
    }
}

} // namespace
} // namespace quillmere
