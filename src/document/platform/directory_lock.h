#pragma once

#include "document/platform/posix_file.h"

#include <string>

namespace quillmere {

/// Holds a directory for this process until the object's end. The system takes the lock away from a
/// process that ended in whatever way, and its cleaners leave a locked directory alone.
class DirectoryLock {
public:
    /// Does not wait: isHeld() tells whether the lock was to be had.
    explicit DirectoryLock(const std::string& directory);

    [[nodiscard]] bool isHeld() const { return isHeld_; }
    /// Whether the directory that was opened is still the one at this path.
    [[nodiscard]] bool isAt(const std::string& directory) const;

private:
    PosixFile directory_;
    bool isHeld_;
};

} // namespace quillmere
