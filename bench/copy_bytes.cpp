// copy-bytes DIR FILE... reads each file and writes its bytes to a file of the same name in DIR,
// and nothing else: the least that any program that repairs decks must do.

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

bool writeAll(int file, const char* bytes, std::size_t size)
{
    while (size > 0) {
        const auto written = write(file, bytes, size);
        if (written <= 0) return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool copyFile(const char* from, const std::string& to)
{
    static std::array<char, 65536> buffer;
    const int in = open(from, O_RDONLY | O_CLOEXEC);
    const int out = open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    bool good = in >= 0 && out >= 0;
    while (good) {
        const auto size = read(in, buffer.data(), buffer.size());
        good = size >= 0;
        if (size <= 0) break;
        good = writeAll(out, buffer.data(), static_cast<std::size_t>(size));
    }
    if (in >= 0) close(in);
    return (out < 0 || close(out) == 0) && good;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        (void)std::fputs("usage: copy-bytes DIR FILE...\n", stderr);
        return 1;
    }
    for (int i = 2; i < argc; ++i) {
        const char* slash = std::strrchr(argv[i], '/');
        const std::string target
            = std::string(argv[1]) + '/' + (slash != nullptr ? slash + 1 : argv[i]);
        if (copyFile(argv[i], target)) continue;
        (void)std::fprintf(stderr, "copy-bytes: %s: %s\n", argv[i], std::strerror(errno));
        return 2;
    }
    return 0;
}
