// A copy is made beside its place and renamed, so that one that was broken off is made again. Held
// by tests/program/settings_store_test.cpp.

#include "program/data_directories.h"

#include "forms/text.h"
#include "program/shipped_copy.h"

#include <QStandardPaths>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr const char* kWrittenFolders[] = {"Skins", "Connect"};
constexpr const char* kSkins = "Skins/";

/// The folder or, where it is still to be made, what it will stand in.
std::string existingFolder(const std::string& directory, const char* name)
{
    std::error_code ignored;
    return fs::exists(directory + name, ignored) ? directory + name : directory;
}

void copyFolder(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    if (fs::exists(to, error) || !fs::is_directory(from, error)) return;
    auto beside = to;
    beside += ".new";
    fs::remove_all(beside, error);
    fs::copy(from, beside, fs::copy_options::recursive, error);
    if (error) return;
    for (const auto& entry : fs::recursive_directory_iterator(beside, error))
        fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add, error);
    fs::permissions(beside, fs::perms::owner_write, fs::perm_options::add, error);
    fs::rename(beside, to, error);
}

} // namespace

bool isWritableDirectory(const std::string& directory)
{
    return ::access(directory.c_str(), W_OK) == 0;
}

DataDirectories prepareDataDirectories(const std::string& appDirectory,
    const std::string& userDirectory,
    const std::function<bool(const std::string& directory)>& canBeWritten)
{
    const bool isUsedInPlace = std::all_of(std::begin(kWrittenFolders), std::end(kWrittenFolders),
        [&](const char* name) { return canBeWritten(existingFolder(appDirectory, name)); });
    if (isUsedInPlace) return {appDirectory, appDirectory};
    std::error_code error;
    fs::create_directories(userDirectory, error);
    for (const auto* folder : kWrittenFolders)
        copyFolder(appDirectory + folder, userDirectory + folder);
    renewShippedCopy(appDirectory + kSkins, userDirectory + kSkins);
    const bool isCopied = fs::exists(userDirectory + kWrittenFolders[0], error);
    return {appDirectory, isCopied ? userDirectory : appDirectory};
}

std::string userDataDirectory()
{
    return corePath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        + "/MORVANE/Quillmere/";
}

} // namespace quillmere
