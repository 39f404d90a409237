#pragma once

#include "document/platform/file_system.h"
#include "document/platform/prompter.h"
#include "document/platform/work_files.h"

#include <string>
#include <string_view>

// Paths. A directory ends in its separator, and a path is directory followed by name. Paths are
// bytes as the system takes them.

namespace quillmere {

/// Which platform's paths a rule is about; the program runs with the native one. Where Windows has
/// a drive such as "C:", Posix has the root, so that a path with a drive is an absolute path.
enum class PathStyle { Windows, Posix };
inline constexpr PathStyle kNativePathStyle = PathStyle::Posix;

[[nodiscard]] constexpr char separator(PathStyle style)
{
    return style == PathStyle::Windows ? '\\' : '/';
}

struct SplitPathResult {
    std::string directory; ///< with its separator; empty where the path has none
    std::string name;
};
/// Splits at the last separator of either style.
[[nodiscard]] SplitPathResult SplitPath(std::string_view path);

/// The path with a separator at its end, made absolute from `currentDirectory`, with single
/// separators of its style and without ".". An empty path stays empty: it names no directory.
/// Windows takes ".." back as well; Posix leaves it to the system, since what stands ahead of it
/// may be a link to elsewhere.
[[nodiscard]] std::string NormalisePath(
    std::string_view path, PathStyle style, std::string_view currentDirectory);
/// The same in the native style from the current directory of this process.
[[nodiscard]] std::string NormalisePath(std::string_view path);

/// `directory` without its last separator, except for a root such as "C:\" or "/".
[[nodiscard]] std::string withoutSeparator(
    std::string_view directory, PathStyle style = kNativePathStyle);

/// Makes each missing directory of the path, the last level included. With `ask` the person is
/// asked once for the whole path, ahead of the first level that is missing, and after a No nothing
/// is made. Returns whether the path exists.
/// Throws FileFailure for a level that cannot be made; those ahead of it stay.
bool MakeDirectories(
    std::string_view path, bool ask, Prompter& prompter, FileSystem& files, PathStyle style);
/// The same on the disk of this machine.
bool MakeDirectories(std::string_view path, bool ask, Prompter& prompter);

/// The directory of this run's work files, private to it.
[[nodiscard]] std::string TempDirectory(const WorkFiles& workFiles);

/// The directory of the system's own files.
[[nodiscard]] std::string SystemDirectory();

/// Where the program's data lies: the directory of the program or, where the program is installed
/// as PREFIX/bin/..., PREFIX/share/quillmere/.
[[nodiscard]] std::string AppDirectory();
/// The same for the program at `executable`.
[[nodiscard]] std::string appDirectoryOf(const std::string& executable, const FileSystem& files);

} // namespace quillmere
