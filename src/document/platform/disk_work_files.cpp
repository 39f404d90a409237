// Held by files_test.cpp, which runs the same checks on the work files in memory.

#include "document/platform/disk_work_files.h"

#include "document/platform/files.h"

#include <filesystem>
#include <system_error>

namespace quillmere {
namespace {

std::string systemTemporaryDirectory()
{
    std::error_code error;
    const auto directory = std::filesystem::temp_directory_path(error);
    return error ? "/tmp/" : (directory / "").string(); // with its separator
}

} // namespace

DiskWorkFiles::DiskWorkFiles()
    : DiskWorkFiles(systemTemporaryDirectory())
{
}

DiskWorkFiles::DiskWorkFiles(const std::string& parent)
    : directory_(makePrivateDirectory(parent))
    , lock_(directory_)
{
}

DiskWorkFiles::~DiskWorkFiles()
{
    std::error_code ignored; // what cannot be removed is the system's to clear
    std::filesystem::remove_all(directory_, ignored);
}

std::string DiskWorkFiles::unusedName(std::string_view prefix, std::string_view suffix)
{
    return names_.first(prefix, suffix, [this](const std::string& name) {
        std::error_code ignored;
        return !std::filesystem::exists(
            std::filesystem::symlink_status(directory_ + name, ignored));
    });
}

std::string DiskWorkFiles::createFile(std::string_view prefix, std::string_view suffix)
{
    return names_.first(prefix, suffix,
        [this](const std::string& name) { return createWorkFile(directory_ + name); });
}

bool DiskWorkFiles::exists(const std::string& path) const
{
    return fileExists(path);
}

std::string DiskWorkFiles::read(const std::string& path) const
{
    return readFile(path);
}

void DiskWorkFiles::write(const std::string& path, std::string bytes)
{
    replaceWorkFile(path, bytes);
}

void DiskWorkFiles::remove(const std::string& path)
{
    removeFile(path);
    if (path.starts_with(directory_)) names_.release(path.substr(directory_.size()));
}

} // namespace quillmere
