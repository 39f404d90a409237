#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <system_error>

// Open files of a POSIX system.

namespace quillmere {

/// The reason why the last call of the system failed.
[[nodiscard]] std::error_code lastError();

/// An open file, closed at the end.
class PosixFile {
public:
    /// Opens `path` with the system's flags; whether that succeeded is asked with isOpen().
    PosixFile(const std::string& path, int flags, mode_t mode = 0);
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;
    PosixFile(PosixFile&&) = delete;
    PosixFile& operator=(PosixFile&&) = delete;
    ~PosixFile();

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }

    // Each of these is false with the reason in lastError() where the system refuses.
    [[nodiscard]] bool write(std::string_view bytes) const;
    [[nodiscard]] bool flush() const;
    [[nodiscard]] bool close();
    /// Reads until the end of the file or until `bytes` holds more than `maxBytes`.
    [[nodiscard]] bool readInto(std::string& bytes, std::size_t maxBytes) const;

private:
    int number_;
};

} // namespace quillmere
