// The kernel's table of mounts (proc(5)) and its flag for removable media (sysfs(5)). A later mount
// hides an earlier one at the same place. Held by paths_test.cpp with tables of its own.

#include "document/platform/mount_table.h"

#include "document/text/text_search.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace quillmere {

namespace {

struct TypeKind {
    std::string_view type; // of the file system
    DriveKind kind;
};

constexpr TypeKind kTypeKinds[] = {
    {"iso9660", DriveKind::CdRom},
    {"udf", DriveKind::CdRom},
    {"nfs", DriveKind::Network},
    {"nfs4", DriveKind::Network},
    {"cifs", DriveKind::Network},
    {"smb3", DriveKind::Network},
    {"fuse.sshfs", DriveKind::Network},
    {"9p", DriveKind::Network},
    {"tmpfs", DriveKind::Memory},
    {"ramfs", DriveKind::Memory},
};

bool isOctal(std::string_view digits)
{
    return digits.size() == 3 && digits.find_first_not_of("01234567") == npos;
}

// Blanks, tabs and backslashes in names stand as "\040", "\011" and "\134".
std::string withoutEscapes(std::string_view field)
{
    std::string result;
    for (std::size_t at = 0; at < field.size(); ++at) {
        const auto digits = field.substr(at + 1, 3);
        if (field[at] != '\\' || !isOctal(digits)) {
            result += field[at];
            continue;
        }
        result += static_cast<char>(std::stoi(std::string(digits), nullptr, 8));
        at += 3;
    }
    return result;
}

std::string withSeparator(std::string directory)
{
    if (!directory.ends_with('/')) directory += '/';
    return directory;
}

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The flag stands with the whole disk; a partition's entry lies inside of its disk's.
bool isRemovableMedium(std::string_view device)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const auto name = fs::path(device).filename();
    const auto entry = fs::canonical("/sys/class/block" / name, error);
    if (error) return false;
    const auto own = contentOf(entry / "removable");
    return (own.empty() ? contentOf(entry.parent_path() / "removable") : own).starts_with('1');
}

std::string homeDirectory()
{
    const char* const home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): read at start
    return home == nullptr ? "/" : home;
}

} // namespace

MountTable::MountTable()
    : MountTable(contentOf("/proc/self/mounts"), isRemovableMedium, homeDirectory())
{
}

MountTable::MountTable(std::string_view table, RemovableTest isRemovable, std::string home)
    : isRemovable_(std::move(isRemovable))
    , home_(withSeparator(std::move(home)))
{
    std::istringstream lines{std::string(table)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string device;
        std::string directory;
        std::string type;
        if (!(fields >> device >> directory >> type)) continue;
        mounts_.push_back({withoutEscapes(device), withSeparator(withoutEscapes(directory)), type});
    }
}

std::vector<std::string> MountTable::roots() const
{
    std::vector<std::string> roots;
    for (const auto& mount : mounts_)
        roots.push_back(mount.directory);
    return roots;
}

DriveKind MountTable::kindOf(const std::string& directory) const
{
    const std::string wanted = withSeparator(directory);
    const Mount* found = nullptr;
    for (const auto& mount : mounts_) {
        const bool isDeeper = !found || mount.directory.size() >= found->directory.size();
        if (isDeeper && wanted.starts_with(mount.directory)) found = &mount;
    }
    if (!found) return DriveKind::Missing;
    for (const auto& row : kTypeKinds)
        if (row.type == found->type) return row.kind;
    if (!found->device.starts_with('/')) return DriveKind::Unknown;
    return isRemovable_(found->device) ? DriveKind::Removable : DriveKind::Fixed;
}

} // namespace quillmere
