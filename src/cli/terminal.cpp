// The C library knows the terminal's encoding and converts into it. Held by tests/cli.

#include "cli/terminal.h"

#include "document/text/failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <iconv.h>
#include <langinfo.h>

namespace quillmere::cli {

namespace {

class Converter {
public:
    explicit Converter(const std::string& encoding)
        : handle_(iconv_open((encoding + "//TRANSLIT").c_str(), "UTF-8"))
    {
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    Converter(Converter&&) = delete;
    Converter& operator=(Converter&&) = delete;
    ~Converter()
    {
        if (usable()) iconv_close(handle_);
    }

    // What the encoding has not at all passes as it is, and so do bytes that are no UTF-8: they are
    // of a file's name, which has the terminal's encoding already.
    [[nodiscard]] std::string convert(std::string_view utf8) const
    {
        std::string source(utf8);
        if (!usable()) return source;
        std::string result;
        char* from = source.data();
        std::size_t left = source.size();
        while (left > 0) {
            if (convertPart(from, left, result) || left == 0) continue;
            result += *from++;
            --left;
        }
        return result;
    }

private:
    static constexpr std::size_t kFailed = static_cast<std::size_t>(-1);
    // False where it stopped at something that cannot be converted.
    bool convertPart(char*& from, std::size_t& left, std::string& result) const
    {
        std::array<char, 256> part{};
        char* to = part.data();
        std::size_t room = part.size();
        const bool done = iconv(handle_, &from, &left, &to, &room) != kFailed || errno == E2BIG;
        result.append(part.data(), part.size() - room);
        return done;
    }
    [[nodiscard]] bool usable() const { return handle_ != iconv_t(-1); } // NOLINT: its own idiom
    iconv_t handle_;
};

// Without a locale the encoding is unknown; UTF-8 is what terminals have today.
std::string terminalEncoding()
{
    (void)std::setlocale(LC_CTYPE, "");
    const std::string encoding = nl_langinfo(CODESET);
    return encoding == "ANSI_X3.4-1968" ? "UTF-8" : encoding;
}

std::string inTerminalEncoding(std::string_view utf8)
{
    static const std::string encoding = terminalEncoding();
    return encoding == "UTF-8" ? std::string(utf8) : Converter(encoding).convert(utf8);
}

void write(std::FILE* stream, std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size()) return;
    throw LostOutput();
}

bool isControl(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '\x7F';
}

} // namespace

LostOutput::LostOutput()
    : FileFailure("Die Standardausgabe nimmt nichts mehr an.")
{
}

std::string inOneLine(std::string_view utf8)
{
    std::string line(utf8);
    std::replace_if(line.begin(), line.end(), isControl, '?');
    return line;
}

void print(std::string_view utf8)
{
    write(stdout, inTerminalEncoding(utf8));
}

void printBytes(std::string_view bytes)
{
    write(stdout, bytes);
}

void complain(std::string_view utf8)
{
    const std::string line = inTerminalEncoding("quillmere-cli: " + inOneLine(utf8) + "\n");
    (void)std::fwrite(line.data(), 1, line.size(), stderr); // nowhere is left to tell a failure
}

std::string readStandardInput(std::size_t maxBytes)
{
    std::string result;
    std::array<char, 16384> part{};
    while (const auto count = std::fread(part.data(), 1, part.size(), stdin)) {
        result.append(part.data(), count);
        if (result.size() > maxBytes) throw Overflow();
    }
    if (std::ferror(stdin) != 0) throw FileFailure("Die Standardeingabe ist nicht zu lesen.");
    return result;
}

void finishOutput()
{
    if (std::fflush(stdout) != 0) throw LostOutput();
}

} // namespace quillmere::cli
