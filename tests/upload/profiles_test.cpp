#include "upload/profiles.h"

#include "document/text/failure.h"
#include "support/scratch_folder.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace quillmere {
namespace {

TEST(Profiles, KeepEveryByteOfAnyFile)
{
    const auto bytes = test::randomBytes(4 * ProfileRecord::kSize, 7);
    const auto profiles = readProfiles(bytes + std::string(ProfileRecord::kSize - 1, 'x'));
    EXPECT_EQ(profiles.size(), 5U);
    EXPECT_EQ(profileBytes(profiles), bytes);
}

TEST(Profiles, AreSavedForTheirOwnerOnly)
{
    const test::ScratchFolder folder;
    const auto path = folder.path() + "Connect/Connect.ini";
    EXPECT_EQ(loadProfiles(path).size(), 1U);
    std::vector<ProfileRecord> profiles(3);
    profiles[1].password.set("geheim");
    for (int times = 0; times < 2; ++times) {
        saveProfiles(path, profiles);
        EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0600));
        EXPECT_EQ(loadProfiles(path).at(1).password.text(), "geheim");
        std::filesystem::permissions(path, std::filesystem::perms(0644));
    }
    EXPECT_THROW(saveProfiles(path + "/Connect.ini", profiles), FileFailure);
    EXPECT_THROW(saveProfiles(folder.path() + "Connect", profiles), FileFailure);
    profiles.resize(1);
    saveProfiles(path, profiles);
    EXPECT_FALSE(folder.has("Connect/Connect.ini"));
}

} // namespace
} // namespace quillmere
