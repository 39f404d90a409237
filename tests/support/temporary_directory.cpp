#include "support/temporary_directory.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace quillmere::test {

TemporaryDirectory::TemporaryDirectory()
{
    std::string pattern
        = (std::filesystem::temp_directory_path() / "quillmere-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    path_ = pattern;
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryDirectory::path(std::string_view name) const
{
    return path_.string() + "/" + std::string(name);
}

std::string TemporaryDirectory::write(std::string_view name, std::string_view bytes) const
{
    std::ofstream file(path(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path(name);
}

std::string bytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace quillmere::test
