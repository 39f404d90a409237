#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <set>
#include <string>
#include <string_view>

// What the core asks of the file system. Paths are the system's own bytes. Failures are
// FileFailure, which names the file and the reason. `files_posix.cpp` is the one for POSIX systems.

namespace quillmere {

inline constexpr std::size_t kAnyFileSize = std::numeric_limits<std::size_t>::max();

/// The bytes of a file. Throws FileFailure for what is missing, a directory or unreadable, and
/// Overflow for more than `maxBytes`, which are never read.
[[nodiscard]] std::string readFile(const std::string& path, std::size_t maxBytes = kAnyFileSize);

/// Whether there is something at `path`, behind links, that is no directory.
[[nodiscard]] bool fileExists(const std::string& path);
/// Whether there is an ordinary file at `path`, behind links: no directory, device or pipe.
[[nodiscard]] bool regularFileExists(const std::string& path);

/// Replaces a file of the person by `bytes`, or makes it: written beside it, checked to be whole,
/// flushed to disk and renamed over it, then the directory is flushed. A symbolic link is followed;
/// the mode is kept, and the owner where the system lets us. A device or pipe is written as it is.
/// Throws FileFailure; the old file is then as it was.
void replaceFile(const std::string& path, std::string_view bytes);

/// Throws FileFailure where replaceFile() would for a reason that is seen without writing: a
/// folder, a folder that is missing, a refused access.
void requireReplaceable(const std::string& path);

/// Makes the file `path`, with the mode and the owner of the file `model`. Throws FileFailure, also
/// where the name is taken; there is then no new file.
void createFile(const std::string& path, std::string_view bytes, const std::string& model);

/// The steps of replaceFile(), so that those of several files can be done side by side. Each throws
/// FileFailure; the old file is then as it was. Signals that end the program wait until it goes.
class FileReplacement {
public:
    /// Writes `bytes` beside the file. A device or pipe is written as it is, and all is done.
    FileReplacement(const std::string& path, std::string_view bytes);
    FileReplacement(FileReplacement&&) noexcept;
    FileReplacement& operator=(FileReplacement&&) noexcept;
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;
    /// What has not taken the file's place is removed.
    ~FileReplacement();

    /// Waits until the bytes are on the disk.
    void flush();
    /// Takes the file's place. Returns the directory that is to be flushed; "" where there is none.
    [[nodiscard]] std::string takePlace();

private:
    struct Neighbour;
    std::unique_ptr<Neighbour> neighbour_; // null once all is done
};

/// Replaces many files, each as replaceFile() does, but flushes every directory just once, at its
/// own end. Until then a crash of the machine may bring back some of the old files, each whole.
class FileReplacements {
public:
    FileReplacements() = default;
    FileReplacements(const FileReplacements&) = delete;
    FileReplacements& operator=(const FileReplacements&) = delete;
    FileReplacements(FileReplacements&&) = delete;
    FileReplacements& operator=(FileReplacements&&) = delete;
    ~FileReplacements();

    /// Throws as replaceFile() does.
    void replace(const std::string& path, std::string_view bytes);
    /// The last step of a replacement that was flushed.
    void finish(FileReplacement& flushed);

private:
    std::set<std::string> directories_; // with files that were replaced
};

// The work files of a run, in a directory that belongs to it alone.

/// A path for a directory of a run below `parent`, by chance. Both have their separators.
[[nodiscard]] std::string privateDirectoryName(const std::string& parent);
/// Makes a directory of mode 0700 at `path`, where nothing may be yet. Throws FileFailure.
void makePrivateDirectory(const std::string& path);
/// Makes an empty file of mode 0600. False where the name is taken, be it by a dangling link.
[[nodiscard]] bool createWorkFile(const std::string& path);
/// Replaces or makes a file without following a link and without waiting for the disk. Throws
/// FileFailure; the old file is then as it was.
void replaceWorkFile(const std::string& path, std::string_view bytes);
/// Removes a file where it exists; one that cannot be removed stays.
void removeFile(const std::string& path);

} // namespace quillmere
