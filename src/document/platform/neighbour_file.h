#pragma once

#include "document/platform/held_signals.h"
#include "document/platform/posix_file.h"

#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace quillmere {

/// A new file beside `target`, which takes the target's place once it stands whole, and is removed
/// at the end where it has not. Signals that end the program wait until then. Failures are
/// FileFailure with the target's name. The target's name must outlive it.
class NeighbourFile {
public:
    NeighbourFile(const std::string& target, mode_t mode);
    NeighbourFile(const NeighbourFile&) = delete;
    NeighbourFile& operator=(const NeighbourFile&) = delete;
    NeighbourFile(NeighbourFile&&) = delete;
    NeighbourFile& operator=(NeighbourFile&&) = delete;
    ~NeighbourFile();

    void write(std::string_view bytes);
    void flush();
    /// Takes over mode and owner of the file that it will replace. Where the system refuses to give
    /// the file away it stays the person's own.
    void resemble(const struct stat& old);
    void takeTheTargetsPlace();

private:
    void require(bool done) const;

    HeldSignals held_; // the first to come and the last to go
    const std::string& target_;
    std::string path_; // empty once there is nothing to remove
    std::optional<PosixFile> file_;
};

/// The directory of a path with its separator; "./" where the path has none.
[[nodiscard]] std::string directoryOf(const std::string& path);

} // namespace quillmere
