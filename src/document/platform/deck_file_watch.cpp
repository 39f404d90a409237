// The stamp is asked first, since it costs one call of the system; only where it differs the bytes
// decide. A file replaced within the clock's own step has another inode. Held by
// deck_file_watch_test.cpp.

#include "document/platform/deck_file_watch.h"

#include "document/platform/files.h"
#include "document/text/content_hash.h"
#include "document/text/failure.h"

#include <sys/stat.h>

namespace quillmere {
namespace {

constexpr std::int64_t kNsPerSecond = 1'000'000'000;
// A file beyond this is no deck, so what its bytes are does not matter.
constexpr std::size_t kMaxComparedBytes = 4U << 20U;

} // namespace

std::optional<DeckFileWatch::Stamp> DeckFileWatch::stampOf(const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return Stamp{status.st_dev, status.st_ino, status.st_size,
        status.st_mtim.tv_sec * kNsPerSecond + status.st_mtim.tv_nsec};
}

std::optional<std::uint64_t> DeckFileWatch::contentOf(const std::string& path)
{
    if (!regularFileExists(path)) return std::nullopt; // a pipe would wait for its other end
    try {
        return contentHash(readFile(path, kMaxComparedBytes));
    } catch (const Failure&) {
        return std::nullopt;
    }
}

void DeckFileWatch::remember(const std::string& path)
{
    known_ = Known{path, stampOf(path), contentOf(path)};
}

// The device and the inode are not kept, so that the stamp differs and the text decides.
void DeckFileWatch::resume(const std::string& path, const SeenDeckFile& seen)
{
    known_ = Known{path, std::nullopt, std::nullopt};
    if (!seen.exists) return;
    known_->stamp = Stamp{0, 0, seen.sizeBytes, seen.modifiedNs};
    if (seen.content != 0) known_->content = seen.content;
}

SeenDeckFile DeckFileWatch::seen() const
{
    if (!known_ || !known_->stamp) return {};
    const auto& stamp = *known_->stamp;
    return {true, stamp.size, stamp.modifiedNs, known_->content.value_or(0)};
}

DeckFileChange DeckFileWatch::change() const
{
    if (!known_) return DeckFileChange::None;
    const auto stamp = stampOf(known_->path);
    if (stamp == known_->stamp) return DeckFileChange::None;
    if (!stamp) return DeckFileChange::Removed;
    const auto content = contentOf(known_->path);
    return content && content == known_->content ? DeckFileChange::None : DeckFileChange::Altered;
}

} // namespace quillmere
