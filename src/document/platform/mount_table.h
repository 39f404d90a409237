#pragma once

#include "document/platform/drives.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// What is mounted on this machine, as the drives of the Posix style.
class MountTable final : public Drives {
public:
    /// Whether the medium of a device such as "/dev/sdb1" can be taken out.
    using RemovableTest = std::function<bool(std::string_view device)>;

    /// The mounts of the running system.
    MountTable();
    /// `table`: lines "device directory type ..." with blanks as "\040", as in /proc/mounts.
    MountTable(std::string_view table, RemovableTest isRemovable, std::string home);

    [[nodiscard]] std::vector<std::string> roots() const override;
    [[nodiscard]] DriveKind kindOf(const std::string& directory) const override;
    [[nodiscard]] std::string personsRoot() const override { return home_; }

private:
    struct Mount {
        std::string device;
        std::string directory; // with its separator
        std::string type;
    };
    std::vector<Mount> mounts_;
    RemovableTest isRemovable_;
    std::string home_; // with its separator
};

} // namespace quillmere
