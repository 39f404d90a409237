#pragma once

#include "document/text/record_fields.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

using ProfileText = TextField<300>;

/// What a connection to an FTP server needs, under a name. Numbers are little-endian, texts are
/// Windows-1252.
struct ProfileRecord {
    static constexpr std::size_t kSize = 1810;
    static constexpr std::int16_t kPasswordSaved = -1;
    ProfileText profileName;
    ProfileText userName;
    ProfileText password; ///< in clear; blank unless savePassword is set
    ProfileText url; ///< host name of the server
    ProfileText reserved; ///< never set, kept as it was read
    std::int32_t accessType = 0; ///< 0 preconfigured, 1 direct, 2 by proxy, from 3 on dial-up
    ProfileText proxyServer;
    std::int32_t port = 0;
    std::int16_t savePassword = 0; ///< kPasswordSaved or 0

    static void eachField(auto& profile, auto&& field)
    {
        field(0, profile.profileName);
        field(300, profile.userName);
        field(600, profile.password);
        field(900, profile.url);
        field(1200, profile.reserved);
        field(1500, profile.accessType);
        field(1504, profile.proxyServer);
        field(1804, profile.port);
        field(1808, profile.savePassword);
    }
};

/// The profiles in the bytes of a profile file and a blank spare one at the end. Any bytes are
/// profiles; those behind the last whole record are passed over.
[[nodiscard]] std::vector<ProfileRecord> readProfiles(std::string_view bytes);

/// The bytes of a profile file with all of `profiles` but the spare one at the end.
[[nodiscard]] std::string profileBytes(const std::vector<ProfileRecord>& profiles);

/// The profiles of a file; none but the spare one where the file is not there. Throws FileFailure.
[[nodiscard]] std::vector<ProfileRecord> loadProfiles(const std::string& path);

/// Writes all profiles but the spare one; without any the file is removed. Only the file's owner
/// can read it, since passwords stand in it. Makes the file's directory. Throws FileFailure; the
/// profiles in the file are then as they were.
void saveProfiles(const std::string& path, const std::vector<ProfileRecord>& profiles);

} // namespace quillmere
