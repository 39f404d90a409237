// A file of passwords must not be readable by others for a moment either, so it gets its mode while
// it is empty, and its replacement takes the mode over. Held by profiles_test.cpp.

#include "upload/profiles.h"

#include "document/platform/files.h"
#include "document/platform/record_files.h"
#include "document/text/failure.h"

#include <filesystem>
#include <system_error>

namespace quillmere {

namespace {

void makeDirectoryOf(const std::string& path)
{
    std::error_code ignored; // the file's own failure tells more
    const auto directory = std::filesystem::path(path).parent_path();
    if (!directory.empty()) std::filesystem::create_directories(directory, ignored);
}

/// Takes the file from others, where an older one was open to them.
void makePrivate(const std::string& path)
{
    using std::filesystem::perms;
    std::error_code error;
    std::filesystem::permissions(path, perms::owner_read | perms::owner_write, error);
    if (error) {
        throw FileFailure("Die Datei " + path
            + " lässt sich nicht vor anderen schützen. Die Zugangsprofile sind nicht gespeichert.");
    }
}

} // namespace

std::vector<ProfileRecord> readProfiles(std::string_view bytes)
{
    return readRecords<ProfileRecord>(bytes);
}

std::string profileBytes(const std::vector<ProfileRecord>& profiles)
{
    std::string bytes;
    for (std::size_t i = 0; i + 1 < profiles.size(); ++i)
        appendRecord(bytes, profiles[i]);
    return bytes;
}

std::vector<ProfileRecord> loadProfiles(const std::string& path)
{
    return readProfiles(fileExists(path) ? readFile(path) : std::string());
}

void saveProfiles(const std::string& path, const std::vector<ProfileRecord>& profiles)
{
    const std::string bytes = profileBytes(profiles);
    if (bytes.empty()) {
        removeRecordFile(path);
        return;
    }
    makeDirectoryOf(path);
    (void)createWorkFile(path);
    makePrivate(path);
    replaceFile(path, bytes);
}

} // namespace quillmere
