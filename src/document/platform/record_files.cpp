// Held by the tests of skin_files and profiles.

#include "document/platform/record_files.h"

#include "document/platform/files.h"
#include "document/text/failure.h"

#include <filesystem>
#include <system_error>

namespace quillmere {

std::string readRecordFile(const std::string& path)
{
    if (!fileExists(path)) replaceFile(path, {});
    return readFile(path);
}

void removeRecordFile(const std::string& path)
{
    std::error_code error;
    std::filesystem::remove(path, error);
    if (error) throw FileFailure("Die Datei „" + path + "“ kann nicht gelöscht werden.");
}

} // namespace quillmere
