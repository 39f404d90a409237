#pragma once

#include "document/platform/paths.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Kinds of drives, with the numbers that Windows gives them.
enum class DriveKind {
    Unknown = 0,
    Missing = 1,
    Removable = 2,
    Fixed = 3,
    Network = 4,
    CdRom = 5,
    Memory = 6
};

/// The drives of a machine: letters, or what is mounted.
class Drives {
public:
    Drives() = default;
    Drives(const Drives&) = delete;
    Drives& operator=(const Drives&) = delete;
    Drives(Drives&&) = delete;
    Drives& operator=(Drives&&) = delete;
    virtual ~Drives() = default;

    /// The root directories, each with its separator, in their order ("A:\" ahead of "C:\").
    [[nodiscard]] virtual std::vector<std::string> roots() const = 0;
    /// The kind of the drive that `directory` lies on.
    [[nodiscard]] virtual DriveKind kindOf(const std::string& directory) const = 0;
    /// Where a person's folders are looked for, with its separator: the root of the current drive,
    /// or the home directory.
    [[nodiscard]] virtual std::string personsRoot() const = 0;
};

/// The kind of the drive of a path. A path without ":" has none in the style of Windows.
[[nodiscard]] DriveKind DriveType(
    std::string_view path, const Drives& drives, PathStyle style = kNativePathStyle);

} // namespace quillmere
