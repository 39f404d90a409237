// Questions to the disk never throw: what cannot be looked at is not there. Held by
// file_system_test.cpp.

#include "document/file_system.h"

#include "document/failure.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace quillmere {

namespace fs = std::filesystem;

namespace {

struct Reason {
    std::errc code;
    std::string_view text;
};

constexpr Reason kReasons[] = {
    {std::errc::permission_denied, "keine Berechtigung"},
    {std::errc::read_only_file_system, "schreibgeschützt"},
    {std::errc::no_space_on_device, "kein Platz mehr"},
    {std::errc::file_exists, "eine Datei trägt diesen Namen"},
    {std::errc::not_a_directory, "ein Teil des Pfades ist eine Datei"},
    {std::errc::no_such_file_or_directory, "das übergeordnete Verzeichnis fehlt"},
    {std::errc::filename_too_long, "der Name ist zu lang"},
};

std::string reasonOf(const std::error_code& error)
{
    for (const auto& reason : kReasons)
        if (error == reason.code) return std::string(reason.text);
    return error.message();
}

} // namespace

bool DiskFileSystem::fileExists(const std::string& path) const
{
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
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
    throw FileFailure(
        "Das Verzeichnis „" + path + "“ konnte nicht angelegt werden (" + reasonOf(error) + ").");
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
