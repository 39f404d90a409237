#pragma once

#include "document/platform/directory_lock.h"
#include "document/platform/work_files.h"
#include "document/platform/work_names.h"
#include "document/text/failure.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace quillmere {

/// Work files in memory and, so that a crash does not take them along, in a directory of mode 0700
/// that belongs to this run alone. Files are made exclusively and never through a link; the
/// directory goes with the object. A directory of such a name that nobody has locked is that of a
/// run which did not end by itself.
///
/// A disk that is full or a directory that is gone fails no operation: trouble() tells of it, and
/// each write tries again to bring all to the disk.
class DiskWorkFiles : public WorkFiles {
public:
    /// Makes the directory below the system's temporary one.
    DiskWorkFiles();
    /// Makes the directory below `parent`, which has its separator.
    explicit DiskWorkFiles(const std::string& parent);
    DiskWorkFiles(const DiskWorkFiles&) = delete;
    DiskWorkFiles& operator=(const DiskWorkFiles&) = delete;
    DiskWorkFiles(DiskWorkFiles&&) = delete;
    DiskWorkFiles& operator=(DiskWorkFiles&&) = delete;
    ~DiskWorkFiles() override;

    [[nodiscard]] std::string directory() const override { return directory_; }
    [[nodiscard]] std::string unusedName(std::string_view prefix, std::string_view suffix) override;
    [[nodiscard]] std::string createFile(std::string_view prefix, std::string_view suffix) override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::string read(const std::string& path) const override;
    void write(const std::string& path, std::string bytes) override;
    void remove(const std::string& path) override;

    /// Why the disk has not all of the files; nullopt where it has.
    [[nodiscard]] const std::optional<FileFailure>& trouble() const { return trouble_; }

private:
    [[nodiscard]] bool isTaken(const std::string& name) const;
    void bringToDisk();
    void requireDirectory();

    std::string directory_;
    std::optional<DirectoryLock> lock_;
    std::map<std::string, std::string, std::less<>> texts_; // by their paths
    std::set<std::string> missing_; // on the disk, of these paths
    WorkNames names_;
    std::optional<FileFailure> trouble_;
};

} // namespace quillmere
