#pragma once

#include <functional>
#include <string>

namespace quillmere {

/// Where the program's data lies.
struct DataDirectories {
    std::string shared; ///< Help, Links, Logo.ico
    std::string writable; ///< Skins, Connect
};

[[nodiscard]] bool isWritableDirectory(const std::string& directory);

/// Uses the data in `appDirectory` where its folders can be written, else copies them once to
/// `userDirectory` and renews there of the skins what the person has not changed. Both have their
/// separators. What cannot be copied is left where it is.
[[nodiscard]] DataDirectories prepareDataDirectories(const std::string& appDirectory,
    const std::string& userDirectory,
    const std::function<bool(const std::string& directory)>& canBeWritten = isWritableDirectory);

/// This person's directory for data of the program.
[[nodiscard]] std::string userDataDirectory();

} // namespace quillmere
