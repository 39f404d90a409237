// The name is taken exclusively and never through a link, so that nobody who can write to the
// directory leads the bytes elsewhere. Held by files_test.cpp.

#include "document/platform/neighbour_file.h"

#include "document/platform/file_failures.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace quillmere {
namespace {

constexpr mode_t kModeBits = 07777;
constexpr int kMaxNames = 100; // crashed runs with the same process number may have left some

thread_local int standing = 0; // files at the moment, whose names are not tried

} // namespace

std::string directoryOf(const std::string& path)
{
    const auto separator = path.rfind('/');
    return separator == std::string::npos ? "./" : path.substr(0, separator + 1);
}

NeighbourFile::NeighbourFile(const std::string& target, mode_t mode)
    : target_(target)
{
    static const auto ownNumber = std::to_string(::getpid());
    const auto stem = directoryOf(target) + ".quillmere-" + ownNumber + '-';
    for (int i = standing; i < standing + kMaxNames; ++i) {
        path_ = stem + std::to_string(i) + ".tmp";
        file_.emplace(path_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
        if (file_->isOpen()) {
            ++standing;
            return;
        }
        if (errno != EEXIST) break;
    }
    throw cannotWrite(target_, lastError());
}

NeighbourFile::~NeighbourFile()
{
    --standing;
    if (!path_.empty()) ::unlink(path_.c_str());
}

void NeighbourFile::write(std::string_view bytes)
{
    require(file_->write(bytes));
}

void NeighbourFile::flush()
{
    require(file_->flush());
}

void NeighbourFile::resemble(const struct stat& old)
{
    if (old.st_uid != ::geteuid() || old.st_gid != ::getegid()) {
        const bool given = ::fchown(file_->number(), old.st_uid, old.st_gid) == 0
            || ::fchown(file_->number(), static_cast<uid_t>(-1), old.st_gid) == 0;
        static_cast<void>(given); // giving away is often for the administrator alone
    }
    require(::fchmod(file_->number(), old.st_mode & kModeBits) == 0);
}

void NeighbourFile::takeTheTargetsPlace()
{
    require(file_->close());
    require(std::rename(path_.c_str(), target_.c_str()) == 0);
    path_.clear();
}

void NeighbourFile::require(bool done) const
{
    if (!done) throw cannotWrite(target_, lastError());
}

} // namespace quillmere
