// Held by recovery_test.cpp.

#include "document/platform/directory_lock.h"

#include <fcntl.h>
#include <sys/file.h>

namespace quillmere {

DirectoryLock::DirectoryLock(const std::string& directory)
    : directory_(directory, O_RDONLY | O_DIRECTORY | O_NOFOLLOW)
    , isHeld_(directory_.isOpen() && ::flock(directory_.number(), LOCK_EX | LOCK_NB) == 0)
{
}

} // namespace quillmere
