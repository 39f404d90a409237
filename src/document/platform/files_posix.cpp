// A file is replaced by one that was written whole beside it, so that at each moment the path names
// either all of the old or all of the new bytes. Held by files_test.cpp.

#include "document/platform/file_failures.h"
#include "document/platform/files.h"
#include "document/platform/held_signals.h"
#include "document/platform/neighbour_file.h"
#include "document/platform/posix_file.h"
#include "document/text/failure.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmere {
namespace {

constexpr mode_t kPrivateMode = 0600;
constexpr mode_t kPrivateDirectoryMode = 0700;
constexpr mode_t kUsualMode = 0666; // less what the person's mask takes away
constexpr int kMaxLinks = 40;

/// What stands at `path` itself, be it a link; nullopt where nothing does.
std::optional<struct stat> statusOf(const std::string& path)
{
    struct stat status { };
    if (::lstat(path.c_str(), &status) == 0) return status;
    if (errno == ENOENT) return std::nullopt;
    throw cannotWrite(path, lastError());
}

bool isDevice(const struct stat& status)
{
    return !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode) && !S_ISLNK(status.st_mode);
}

bool leadsToDevice(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 && isDevice(status);
}

/// Where a chain of links leads to, be there a file or not.
std::string behindLinks(const std::string& path)
{
    std::error_code error;
    std::string target = path;
    for (int i = 0; i < kMaxLinks; ++i) {
        if (!std::filesystem::is_symlink(target, error)) return target;
        const auto next = std::filesystem::read_symlink(target, error);
        if (error) throw cannotWrite(path, error);
        target = next.is_absolute() ? next.string() : directoryOf(target) + next.string();
    }
    throw cannotWrite(path, std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

void writeToDevice(const std::string& path, std::string_view bytes)
{
    PosixFile device(path, O_WRONLY);
    if (!device.isOpen() || !device.write(bytes) || !device.close())
        throw cannotWrite(path, lastError());
}

// The new file stands already: a directory that cannot be flushed is no failure any more.
void flushDirectory(const std::string& directory)
{
    const PosixFile opened(directory, O_RDONLY | O_DIRECTORY);
    if (opened.isOpen()) static_cast<void>(opened.flush());
}

void requireAccess(const std::string& path, const std::string& target)
{
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        throw cannotWrite(target, lastError());
}

} // namespace

/// With the target's name, which it refers to.
struct FileReplacement::Neighbour {
    std::string target;
    NeighbourFile file;

    Neighbour(std::string name, const std::optional<struct stat>& old, std::string_view bytes)
        : target(std::move(name))
        , file(target, old ? kPrivateMode : kUsualMode)
    {
        file.write(bytes);
        if (old) file.resemble(*old);
    }
};

FileReplacement::FileReplacement(const std::string& path, std::string_view bytes)
{
    auto old = statusOf(path);
    const bool isLink = old && S_ISLNK(old->st_mode);
    const bool isFollowed = isLink && !leadsToDevice(path);
    const auto target = isFollowed ? behindLinks(path) : path;
    if (isFollowed) old = statusOf(target);
    if (old && S_ISDIR(old->st_mode))
        throw cannotWrite(path, std::make_error_code(std::errc::is_a_directory));
    if (old && (isDevice(*old) || S_ISLNK(old->st_mode))) {
        writeToDevice(target, bytes);
        return;
    }
    if (old) requireAccess(target, target); // else a new name would pass by its write protection
    neighbour_ = std::make_unique<Neighbour>(target, old, bytes);
}

FileReplacement::FileReplacement(FileReplacement&&) noexcept = default;
FileReplacement& FileReplacement::operator=(FileReplacement&&) noexcept = default;
FileReplacement::~FileReplacement() = default;

void FileReplacement::flush()
{
    if (neighbour_) neighbour_->file.flush();
}

std::string FileReplacement::takePlace()
{
    if (!neighbour_) return {};
    neighbour_->file.takeTheTargetsPlace();
    auto directory = directoryOf(neighbour_->target);
    neighbour_.reset();
    return directory;
}

std::string readFile(const std::string& path, std::size_t maxBytes)
{
    const PosixFile file(path, O_RDONLY);
    std::string bytes;
    if (!file.isOpen() || !file.readInto(bytes, maxBytes)) throw cannotRead(path, lastError());
    if (bytes.size() > maxBytes) throw Overflow();
    return bytes;
}

bool fileExists(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool regularFileExists(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

FileReplacements::~FileReplacements()
{
    for (const auto& directory : directories_)
        flushDirectory(directory);
}

void FileReplacements::replace(const std::string& path, std::string_view bytes)
{
    FileReplacement replacement(path, bytes);
    replacement.flush();
    finish(replacement);
}

void FileReplacements::finish(FileReplacement& flushed)
{
    auto directory = flushed.takePlace();
    if (!directory.empty()) directories_.insert(std::move(directory));
}

void replaceFile(const std::string& path, std::string_view bytes)
{
    FileReplacements().replace(path, bytes);
}

void requireReplaceable(const std::string& path)
{
    const auto target = leadsToDevice(path) ? path : behindLinks(path);
    const auto old = statusOf(target);
    if (old && S_ISDIR(old->st_mode))
        throw cannotWrite(path, std::make_error_code(std::errc::is_a_directory));
    if (old) requireAccess(target, target);
    if (!leadsToDevice(path)) requireAccess(directoryOf(target), target);
}

void createFile(const std::string& path, std::string_view bytes, const std::string& model)
{
    struct stat like { };
    if (::stat(model.c_str(), &like) != 0) throw cannotRead(model, lastError());
    const HeldSignals held;
    // An empty file takes the name, so that the one that replaces it is never over another's.
    if (!createWorkFile(path))
        throw cannotWrite(path, std::make_error_code(std::errc::file_exists));
    try {
        NeighbourFile neighbour(path, kPrivateMode);
        neighbour.write(bytes);
        neighbour.resemble(like);
        neighbour.flush();
        neighbour.takeTheTargetsPlace();
    } catch (const FileFailure&) {
        removeFile(path);
        throw;
    }
}

std::string privateDirectoryName(const std::string& parent)
{
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr std::size_t kLength = 6;
    std::random_device chance;
    auto path = parent + "quillmere-";
    for (std::size_t i = 0; i < kLength; ++i)
        path += kLetters[chance() % kLetters.size()];
    return path + '/';
}

void makePrivateDirectory(const std::string& path)
{
    if (::mkdir(path.c_str(), kPrivateDirectoryMode) != 0) throw cannotWrite(path, lastError());
}

bool createWorkFile(const std::string& path)
{
    const PosixFile file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, kPrivateMode);
    if (!file.isOpen() && errno != EEXIST) throw cannotWrite(path, lastError());
    return file.isOpen();
}

void replaceWorkFile(const std::string& path, std::string_view bytes)
{
    NeighbourFile neighbour(path, kPrivateMode);
    neighbour.write(bytes);
    neighbour.takeTheTargetsPlace();
}

void removeFile(const std::string& path)
{
    ::unlink(path.c_str());
}

} // namespace quillmere
