// Held by images_test.cpp.

#include "document/image_index.h"

#include "document/deck.h"
#include "document/text/windows1252.h"

namespace quillmere {

namespace {

std::string keyOf(const ImageEntry& entry)
{
    return lowerCase(entry.sourceDir + entry.sourceFile);
}

} // namespace

const ImageEntry* ImageIndex::find(const std::vector<ImageEntry>& images, std::string_view path)
{
    const std::string key = lowerCase(path);
    readNewEntries(images);
    auto found = places_.find(key);
    if (found != places_.end() && keyOf(images[found->second]) != key) {
        *this = {}; // the list was started anew and has grown since
        readNewEntries(images);
        found = places_.find(key);
    }
    return found == places_.end() || key.empty() ? nullptr : &images[found->second];
}

void ImageIndex::readNewEntries(const std::vector<ImageEntry>& images)
{
    if (read_ >= images.size()) *this = {}; // the list was started anew
    for (; read_ + 1 < images.size(); ++read_)
        places_.emplace(keyOf(images[read_]), read_);
}

} // namespace quillmere
