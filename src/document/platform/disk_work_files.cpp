// What is read comes from memory, so that an open deck can be saved whatever becomes of the disk.
// Held by files_test.cpp, which runs the same checks on work files that are in memory alone.

#include "document/platform/disk_work_files.h"

#include "document/platform/files.h"

#include <filesystem>
#include <system_error>
#include <utility>

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
    : directory_(privateDirectoryName(parent))
{
    bringToDisk();
}

DiskWorkFiles::~DiskWorkFiles()
{
    if (!lock_ || !lock_->isAt(directory_)) return;
    std::error_code ignored; // what cannot be removed is the system's to clear
    std::filesystem::remove_all(directory_, ignored);
}

bool DiskWorkFiles::isTaken(const std::string& name) const
{
    std::error_code ignored;
    return texts_.contains(directory_ + name)
        || std::filesystem::exists(std::filesystem::symlink_status(directory_ + name, ignored));
}

std::string DiskWorkFiles::unusedName(std::string_view prefix, std::string_view suffix)
{
    return names_.first(prefix, suffix, [this](const std::string& name) { return !isTaken(name); });
}

std::string DiskWorkFiles::createFile(std::string_view prefix, std::string_view suffix)
{
    auto name = unusedName(prefix, suffix);
    write(directory_ + name, {});
    return name;
}

bool DiskWorkFiles::exists(const std::string& path) const
{
    return texts_.contains(path) || fileExists(path);
}

std::string DiskWorkFiles::read(const std::string& path) const
{
    const auto found = texts_.find(path);
    return found == texts_.end() ? readFile(path) : found->second;
}

void DiskWorkFiles::write(const std::string& path, std::string bytes)
{
    texts_[path] = std::move(bytes);
    missing_.insert(path);
    bringToDisk();
}

void DiskWorkFiles::remove(const std::string& path)
{
    texts_.erase(path);
    missing_.erase(path);
    removeFile(path);
    if (path.starts_with(directory_)) names_.release(path.substr(directory_.size()));
}

void DiskWorkFiles::bringToDisk()
{
    try {
        requireDirectory();
        while (!missing_.empty()) {
            replaceWorkFile(*missing_.begin(), texts_.find(*missing_.begin())->second);
            missing_.erase(missing_.begin());
        }
        trouble_.reset();
    } catch (const FileFailure& failure) {
        trouble_ = failure;
    }
}

/// A directory that is gone, or is no longer the one that was made here, is made anew.
void DiskWorkFiles::requireDirectory()
{
    if (lock_ && lock_->isAt(directory_)) return;
    makePrivateDirectory(directory_);
    lock_.emplace(directory_);
    for (const auto& [path, text] : texts_)
        missing_.insert(path);
}

} // namespace quillmere
