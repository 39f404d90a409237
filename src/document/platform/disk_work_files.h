#pragma once

#include "document/platform/directory_lock.h"
#include "document/platform/work_files.h"
#include "document/platform/work_names.h"

#include <string>
#include <string_view>

namespace quillmere {

/// Work files in a directory of mode 0700 that belongs to this run alone. Files are made
/// exclusively and never through a link; the directory goes with the object. A directory of such a
/// name that nobody has locked is that of a run which did not end by itself.
class DiskWorkFiles : public WorkFiles {
public:
    /// Makes the directory below the system's temporary one. Throws FileFailure.
    DiskWorkFiles();
    /// Makes the directory below `parent`, which has its separator. Throws FileFailure.
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

private:
    std::string directory_;
    DirectoryLock lock_;
    WorkNames names_;
};

} // namespace quillmere
