// Paths are read separator by separator from left to right. Held by paths_test.cpp, in both styles.

#include "document/platform/paths.h"

#include "document/platform/word_ids.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <vector>

namespace quillmere {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSeparators = "\\/";

std::size_t rootLength(std::string_view path, PathStyle style)
{
    if (style == PathStyle::Posix) return path.starts_with('/') ? 1 : 0;
    const auto colon = path.find(':');
    return colon == npos ? 0 : colon + 1;
}

// Whether a directory without its separator is a root such as "C:" or "".
bool isRoot(std::string_view directory, PathStyle style)
{
    return directory.empty() || (style == PathStyle::Windows && directory.ends_with(':'));
}

// A name that only Posix has may hold a backslash, while Windows takes both separators.
std::string_view separatorsOf(PathStyle style)
{
    return style == PathStyle::Windows ? kSeparators : std::string_view("/");
}

std::vector<std::string_view> levelsOf(std::string_view path, PathStyle style)
{
    std::vector<std::string_view> levels;
    for (std::size_t begin = 0; begin < path.size();) {
        const auto end = std::min(path.find_first_of(separatorsOf(style), begin), path.size());
        const auto level = path.substr(begin, end - begin);
        const bool leadsUp = level == ".." && style == PathStyle::Windows;
        if (leadsUp && !levels.empty()) levels.pop_back();
        if (!leadsUp && !level.empty() && level != ".") levels.push_back(level);
        begin = end + 1;
    }
    return levels;
}

bool assents(std::string_view path, Prompter& prompter, PathStyle style)
{
    const std::array gaps{fromUtf8(withoutSeparator(path, style))};
    return prompter.ask(word::kMakeDirectory, gaps, MessageIcon::Question);
}

} // namespace

SplitPathResult SplitPath(std::string_view path)
{
    // One behind what is not found is 0.
    const auto nameAt = std::max(path.rfind('/') + 1, path.rfind('\\') + 1);
    return {std::string(path.substr(0, nameAt)), std::string(path.substr(nameAt))};
}

std::string NormalisePath(std::string_view path, PathStyle style, std::string_view currentDirectory)
{
    if (path.empty()) return {};
    std::string absolute(path);
    if (rootLength(path, style) == 0)
        absolute = std::string(currentDirectory) + separator(style) + absolute;
    const auto root = rootLength(absolute, style);
    std::string result = style == PathStyle::Windows ? absolute.substr(0, root) : std::string();
    result += separator(style);
    for (const auto level : levelsOf(std::string_view(absolute).substr(root), style))
        result.append(level) += separator(style);
    return result;
}

std::string NormalisePath(std::string_view path)
{
    std::error_code ignored; // a current directory that was removed: from the root
    return NormalisePath(path, kNativePathStyle, fs::current_path(ignored).string());
}

std::string withoutSeparator(std::string_view directory, PathStyle style)
{
    if (directory.empty()) return {};
    if (directory.ends_with(separator(style))) directory.remove_suffix(1);
    std::string result(directory);
    if (isRoot(result, style)) result += separator(style);
    return result;
}

bool MakeDirectories(
    std::string_view path, bool ask, Prompter& prompter, FileSystem& files, PathStyle style)
{
    bool mayMake = !ask;
    for (std::size_t from = 0; from < path.size();) {
        const auto end = std::min(path.find(separator(style), from), path.size());
        const std::string level(path.substr(0, end));
        from = end + 1;
        if (isRoot(level, style) || files.directoryExists(level)) continue;
        mayMake = mayMake || assents(path, prompter, style); // one question for all levels
        if (!mayMake) return false;
        files.makeDirectory(level);
    }
    return files.directoryExists(std::string(path));
}

bool MakeDirectories(std::string_view path, bool ask, Prompter& prompter)
{
    DiskFileSystem disk;
    return MakeDirectories(path, ask, prompter, disk, kNativePathStyle);
}

std::string TempDirectory(const WorkFiles& workFiles)
{
    return workFiles.directory();
}

std::string SystemDirectory()
{
    return NormalisePath("/usr/lib");
}

std::string AppDirectory()
{
    std::error_code ignored;
    return appDirectoryOf(fs::read_symlink("/proc/self/exe", ignored).string(), DiskFileSystem());
}

std::string appDirectoryOf(const std::string& executable, const FileSystem& files)
{
    std::string directory = NormalisePath(SplitPath(executable).directory);
    constexpr std::string_view kPrograms = "bin/";
    if (directory.ends_with("/bin/")) {
        const auto prefix = directory.substr(0, directory.size() - kPrograms.size());
        auto data = prefix + "share/quillmere/";
        if (files.directoryExists(data)) return data;
    }
    return directory;
}

} // namespace quillmere
