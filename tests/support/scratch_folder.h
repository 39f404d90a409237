#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillmere::test {

/// A folder of one test, removed with all that is in it.
class ScratchFolder {
public:
    ScratchFolder()
        : path_((std::filesystem::temp_directory_path() / "quillmere-test-XXXXXX").string())
    {
        if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder for the test");
        path_ += '/';
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ScratchFolder(ScratchFolder&&) = delete;
    ScratchFolder& operator=(ScratchFolder&&) = delete;

    /// With its separator.
    [[nodiscard]] const std::string& path() const { return path_; }
    /// Makes the file, with its directories, and returns its path.
    std::string put(const std::string& name, std::string_view bytes) const
    {
        std::filesystem::create_directories(std::filesystem::path(path_ + name).parent_path());
        std::ofstream(path_ + name, std::ios::binary) << bytes;
        return path_ + name;
    }
    [[nodiscard]] bool has(const std::string& name) const
    {
        return std::filesystem::exists(path_ + name);
    }
    [[nodiscard]] std::string get(const std::string& name) const
    {
        std::ifstream file(path_ + name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::string path_;
};

} // namespace quillmere::test
