// Calls that a signal broke off are repeated. Held by files_test.cpp.

#include "document/platform/posix_file.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillmere {

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

PosixFile::PosixFile(const std::string& path, int flags, mode_t mode)
    : number_(::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode))
{
}

PosixFile::~PosixFile()
{
    if (isOpen()) ::close(number_);
}

bool PosixFile::write(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const auto taken = ::write(number_, bytes.data(), bytes.size());
        if (taken < 0 && errno == EINTR) continue;
        if (taken == 0) errno = ENOSPC;
        if (taken <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(taken));
    }
    return true;
}

bool PosixFile::flush() const
{
    return ::fsync(number_) == 0;
}

bool PosixFile::close()
{
    return ::close(std::exchange(number_, -1)) == 0;
}

bool PosixFile::readInto(std::string& bytes, std::size_t maxBytes) const
{
    constexpr std::size_t kChunk = 4096; // for what does not know its size, such as a pipe
    struct stat status { };
    if (::fstat(number_, &status) != 0) return false;
    const auto size = static_cast<std::size_t>(status.st_size);
    const auto told = std::min(size, maxBytes);
    bytes.assign(told + 1, '\0'); // one more, so that the end is seen without growing
    std::size_t length = 0;
    while (length <= maxBytes) {
        if (length == bytes.size()) bytes.resize(bytes.size() * 2 + kChunk);
        const auto count = ::read(number_, bytes.data() + length, bytes.size() - length);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        if (count == 0) break;
        length += static_cast<std::size_t>(count);
        // There was room for one more. What does not know its size tells 0 and is asked again.
        if (length == size && size > 0) break;
    }
    bytes.resize(length);
    return true;
}

} // namespace quillmere
