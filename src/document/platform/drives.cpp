// Held by paths_test.cpp.

#include "document/platform/drives.h"

#include "document/text/text_search.h"

namespace quillmere {

DriveKind DriveType(std::string_view path, const Drives& drives, PathStyle style)
{
    if (style == PathStyle::Posix) return drives.kindOf(std::string(path));
    const auto colon = path.find(':');
    if (colon == npos) return DriveKind::Unknown;
    return drives.kindOf(std::string(path.substr(0, colon + 1)) + '\\');
}

} // namespace quillmere
