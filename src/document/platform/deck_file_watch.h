#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillmere {

/// What became of a deck's file since it was read or written here.
enum class DeckFileChange {
    None, ///< the same text; a new time alone is no change
    Altered, ///< another text, or there is a file now where none was
    Removed
};

/// A deck's file as it was seen, in a form to be kept beyond the end of the program.
struct SeenDeckFile {
    bool exists = false;
    std::int64_t sizeBytes = 0;
    std::int64_t modifiedNs = 0; ///< since 1970
    std::uint64_t content = 0; ///< contentHash(); 0 for a file that cannot be read
    bool operator==(const SeenDeckFile&) const = default;
};

/// Tells whether another program went over the deck's file, so that a save can say so before it
/// goes over that.
class DeckFileWatch {
public:
    /// Takes the file as it is now, as what the open deck was read from or written to. A file that
    /// is not there yet is remembered as missing.
    void remember(const std::string& path);
    /// The same with a file as it was seen by an earlier run.
    void resume(const std::string& path, const SeenDeckFile& seen);
    /// What is remembered.
    [[nodiscard]] SeenDeckFile seen() const;
    /// No deck is open any more.
    void forget() { known_.reset(); }

    /// None where nothing is remembered. A file that cannot be read any more counts as altered.
    [[nodiscard]] DeckFileChange change() const;
    [[nodiscard]] bool hasChangedOutside() const { return change() != DeckFileChange::None; }

private:
    struct Stamp {
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        std::int64_t size = 0;
        std::int64_t modifiedNs = 0;
        bool operator==(const Stamp&) const = default;
    };
    struct Known {
        std::string path;
        std::optional<Stamp> stamp; // nullopt: missing
        std::optional<std::uint64_t> content; // nullopt: not readable
    };
    [[nodiscard]] static std::optional<Stamp> stampOf(const std::string& path);
    [[nodiscard]] static std::optional<std::uint64_t> contentOf(const std::string& path);

    std::optional<Known> known_;
};

} // namespace quillmere
