// Questions to the disk never throw: what cannot be looked at is not there. Held by
// paths_test.cpp.

#include "document/platform/file_system.h"

#include "document/platform/file_failures.h"
#include "document/platform/files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace quillmere {

namespace fs = std::filesystem;

bool DiskFileSystem::fileExists(const std::string& path) const
{
    return quillmere::fileExists(path);
}

bool DiskFileSystem::directoryExists(const std::string& path) const
{
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

void DiskFileSystem::makeDirectory(const std::string& path)
{
    std::error_code error;
    if (fs::create_directory(path, error) || directoryExists(path)) return;
    if (!error) error = std::make_error_code(std::errc::file_exists);
    throw cannotMakeDirectory(path, error);
}

std::vector<std::string> DiskFileSystem::directoriesIn(const std::string& path) const
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(path, error), end; !error && at != end; at.increment(error)) {
        std::string name = at->path().filename().string();
        if (name.front() != '.' && directoryExists(at->path().string()))
            names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace quillmere
