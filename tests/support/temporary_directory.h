#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillmere::test {

/// A directory of one test, removed with all that is in it.
class TemporaryDirectory {
public:
    TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    TemporaryDirectory(TemporaryDirectory&&) = delete;
    TemporaryDirectory& operator=(TemporaryDirectory&&) = delete;
    ~TemporaryDirectory();

    /// The path of `name` in it; the directory itself with its separator for "".
    [[nodiscard]] std::string path(std::string_view name = {}) const;
    /// Writes a file into it and returns its path.
    std::string write(std::string_view name, std::string_view bytes) const;

private:
    std::filesystem::path path_;
};

[[nodiscard]] std::string bytesOf(const std::string& path);

} // namespace quillmere::test
