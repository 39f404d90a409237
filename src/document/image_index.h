#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillmere {

struct ImageEntry;

/// Finds the entries of one area by the paths of their pictures, ignoring case, without walking the
/// list for each picture of a deck. Entries may be added at the end and the list may be started
/// anew at any time; an entry that keeps its place keeps its picture.
class ImageIndex {
public:
    /// The first entry with the picture `path`; nullptr where there is none. The spare entry at the
    /// end does not count.
    [[nodiscard]] const ImageEntry* find(
        const std::vector<ImageEntry>& images, std::string_view path);

private:
    void readNewEntries(const std::vector<ImageEntry>& images);

    std::unordered_map<std::string, std::size_t> places_;
    std::size_t read_ = 0; // entries ahead of it are in places_
};

} // namespace quillmere
