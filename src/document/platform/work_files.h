#pragma once

#include <string>
#include <string_view>

namespace quillmere {

// Names of work files: Wml0.htm, ... for areas; Wml0.wml, ... for generated decks and pristine
// copies.
inline constexpr std::string_view kWorkFilePrefix = "Wml";
inline constexpr std::string_view kDesignFileSuffix = ".htm";
inline constexpr std::string_view kWmlFileSuffix = ".wml";

/// Where the work files of a session lie: design work files, generated decks, display copies.
/// Paths are directory followed by name. Failures are FileFailure; a counter of names beyond
/// 32767 is Overflow.
class WorkFiles {
public:
    WorkFiles() = default;
    WorkFiles(const WorkFiles&) = delete;
    WorkFiles& operator=(const WorkFiles&) = delete;
    WorkFiles(WorkFiles&&) = delete;
    WorkFiles& operator=(WorkFiles&&) = delete;
    virtual ~WorkFiles() = default;

    /// The directory of new work files, with its separator.
    [[nodiscard]] virtual std::string directory() const = 0;
    /// The first of PREFIX0SUFFIX, PREFIX1SUFFIX, ... that no file in directory() bears.
    [[nodiscard]] virtual std::string unusedName(std::string_view prefix, std::string_view suffix)
        = 0;
    /// The same, and makes the file, empty, so that the next search skips it.
    [[nodiscard]] virtual std::string createFile(std::string_view prefix, std::string_view suffix)
        = 0;
    [[nodiscard]] virtual bool exists(const std::string& path) const = 0;
    [[nodiscard]] virtual std::string read(const std::string& path) const = 0;
    virtual void write(const std::string& path, std::string bytes) = 0;
    /// Removes the file where it exists.
    virtual void remove(const std::string& path) = 0;
};

} // namespace quillmere
