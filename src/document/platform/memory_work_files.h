#pragma once

#include "document/platform/work_files.h"
#include "document/platform/work_names.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace quillmere {

/// Work files that never touch the disk, for runs without a window. directory() is "", so that a
/// path is the bare name.
class MemoryWorkFiles : public WorkFiles {
public:
    [[nodiscard]] std::string directory() const override { return {}; }
    [[nodiscard]] std::string unusedName(std::string_view prefix, std::string_view suffix) override;
    [[nodiscard]] std::string createFile(std::string_view prefix, std::string_view suffix) override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::string read(const std::string& path) const override;
    void write(const std::string& path, std::string bytes) override;
    void remove(const std::string& path) override;

    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& all() const
    {
        return files_;
    }

private:
    std::map<std::string, std::string, std::less<>> files_;
    WorkNames names_;
};

} // namespace quillmere
