// Held by files_test.cpp, which runs the same checks on the work files of a disk.

#include "document/platform/memory_work_files.h"

#include "document/platform/file_failures.h"

#include <utility>

namespace quillmere {

std::string MemoryWorkFiles::unusedName(std::string_view prefix, std::string_view suffix)
{
    return names_.first(prefix, suffix, [this](const std::string& name) { return !exists(name); });
}

std::string MemoryWorkFiles::createFile(std::string_view prefix, std::string_view suffix)
{
    return names_.first(prefix, suffix,
        [this](const std::string& name) { return files_.try_emplace(name).second; });
}

bool MemoryWorkFiles::exists(const std::string& path) const
{
    return files_.contains(path);
}

std::string MemoryWorkFiles::read(const std::string& path) const
{
    const auto found = files_.find(path);
    if (found != files_.end()) return found->second;
    throw cannotRead(path, std::make_error_code(std::errc::no_such_file_or_directory));
}

void MemoryWorkFiles::write(const std::string& path, std::string bytes)
{
    files_[path] = std::move(bytes);
}

void MemoryWorkFiles::remove(const std::string& path)
{
    if (files_.erase(path) > 0) names_.release(path);
}

} // namespace quillmere
