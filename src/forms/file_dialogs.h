#pragma once

#include <QString>

#include <optional>

namespace quillmere {

/// What a dialog for files is opened with.
struct FileQuestion {
    QString title;
    QString directory; ///< shown first
    QString filter; ///< as Qt writes them: "WML-Dateien (*.wml)"
    QString suffix; ///< put behind a name without one, with its point: ".wml"
    QString name; ///< proposed
};

/// The system's dialogs for files and folders; nullopt where the person cancels. Tests answer them
/// in the place of a person.
class FileDialogs {
public:
    FileDialogs() = default;
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;
    FileDialogs(FileDialogs&&) = delete;
    FileDialogs& operator=(FileDialogs&&) = delete;
    virtual ~FileDialogs() = default;

    [[nodiscard]] virtual std::optional<QString> openFile(const FileQuestion& question) = 0;
    /// Does not ask before a file is replaced: the callers do.
    [[nodiscard]] virtual std::optional<QString> saveFile(const FileQuestion& question) = 0;
    [[nodiscard]] virtual std::optional<QString> chooseFolder(const FileQuestion& question) = 0;
};

} // namespace quillmere
