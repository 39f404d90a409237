// Held by recovery_test.cpp.

#include "document/platform/directory_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace quillmere {

DirectoryLock::DirectoryLock(const std::string& directory)
    : directory_(directory, O_RDONLY | O_DIRECTORY | O_NOFOLLOW)
    , isHeld_(directory_.isOpen() && ::flock(directory_.number(), LOCK_EX | LOCK_NB) == 0)
{
}

bool DirectoryLock::isAt(const std::string& directory) const
{
    struct stat held { };
    struct stat there { };
    return ::fstat(directory_.number(), &held) == 0 && ::stat(directory.c_str(), &there) == 0
        && held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

} // namespace quillmere
