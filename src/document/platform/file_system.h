#pragma once

#include <string>
#include <vector>

namespace quillmere {

/// Which files and directories there are, for rules that only need to know that. Paths are bytes as
/// the system takes them; a directory may be given with or without its separator.
class FileSystem {
public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    FileSystem(FileSystem&&) = delete;
    FileSystem& operator=(FileSystem&&) = delete;
    virtual ~FileSystem() = default;

    [[nodiscard]] virtual bool fileExists(const std::string& path) const = 0;
    [[nodiscard]] virtual bool directoryExists(const std::string& path) const = 0;
    /// Makes one directory, whose parent exists. Throws FileFailure.
    virtual void makeDirectory(const std::string& path) = 0;
    /// The names of the directories in `path` that are not hidden, sorted; none where it cannot be
    /// read.
    [[nodiscard]] virtual std::vector<std::string> directoriesIn(const std::string& path) const = 0;
};

/// The disk of this machine.
class DiskFileSystem final : public FileSystem {
public:
    [[nodiscard]] bool fileExists(const std::string& path) const override;
    [[nodiscard]] bool directoryExists(const std::string& path) const override;
    void makeDirectory(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> directoriesIn(const std::string& path) const override;
};

} // namespace quillmere
