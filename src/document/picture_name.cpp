// Only names with such letters cost a look at the disk. Held by images_test.cpp.

#include "document/picture_name.h"

#include "document/platform/files.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <cstdint>

namespace quillmere {

namespace {

/// The name with the letters that references stand for.
std::string withLetters(std::string name)
{
    for (unsigned code = 0x7F; code <= 0xFF && name.find("&#") != npos; ++code) {
        const auto letter = static_cast<char>(code);
        const auto point = static_cast<std::uint32_t>(toCodePoint(letter));
        const auto reference = "&#" + std::to_string(point) + ";";
        for (auto at = name.find(reference); at != npos; at = name.find(reference, at + 1))
            name.replace(at, reference.size(), 1, letter);
    }
    return name;
}

} // namespace

std::string nameOnDisk(const std::string& directory, const std::string& name)
{
    std::string utf8 = toUtf8(withLetters(name));
    return utf8 == name || fileExists(directory + name) ? name : utf8;
}

} // namespace quillmere
