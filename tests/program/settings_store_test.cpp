#include "program/cls_registry.h"
#include "program/data_directories.h"

#include "app/settings.h"
#include "support/fake_platform.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using test::ScratchFolder;

QString storeIn(const ScratchFolder& folder)
{
    return QString::fromStdString(folder.path() + "a/b/Quillmere.conf");
}

TEST(Registry, GivesEveryValueBackAsItWasGiven)
{
    const ScratchFolder folder;
    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    const std::string values[]
        = {"", "Yes", "/home/j\xC3\xBCrgen/wap/", "Gr\xF6\xDF", everyByte, "a, b; \"c\" = %20\\n",
            "@ByteArray(x)", " blank ", std::string(1024, 'x'), "\xEF\xBB\xBFmark"};
    for (const auto& value : values) {
        SCOPED_TRACE(value);
        clsRegistry(storeIn(folder)).WriteSetting("Skins", value);
        EXPECT_EQ(clsRegistry(storeIn(folder)).ReadSetting("Skins"), value);
    }
    clsRegistry store(storeIn(folder));
    store.WriteSetting("Skins", std::string("two zeros\0\0", 11));
    EXPECT_EQ(store.ReadSetting("Skins"), std::string("two zeros\0", 10));
    store.WriteSetting("Skins", std::string(1025, 'x'));
    EXPECT_EQ(store.ReadSetting("Skins"), "");
    EXPECT_EQ(store.ReadSetting("LastPath1"), "");
}

TEST(DataDirectories, AreCopiedOnceWhereTheProgramsOwnCannotBeWritten)
{
    const ScratchFolder folder;
    (void)folder.put("app/Skins/Adjust.ini", "records");
    (void)folder.put("app/Connect/Connect.ini", "profiles");
    const auto app = folder.path() + "app/";
    const auto user = folder.path() + "data/MORVANE/";
    EXPECT_EQ(prepareDataDirectories(app, user).writable, app);
    EXPECT_FALSE(folder.has("data"));

    const auto isMine = [&](const std::string& path) { return !path.starts_with(app); };
    std::filesystem::permissions(app + "Skins/Adjust.ini", std::filesystem::perms::owner_read);
    const auto directories = prepareDataDirectories(app, user, isMine);
    EXPECT_EQ(directories.writable, user);
    EXPECT_EQ(directories.shared, app);
    EXPECT_EQ(folder.get("data/MORVANE/Connect/Connect.ini"), "profiles");
    const auto mode = std::filesystem::status(user + "Skins/Adjust.ini").permissions();
    EXPECT_NE(mode & std::filesystem::perms::owner_write, std::filesystem::perms::none);
    (void)folder.put("data/MORVANE/Skins/Adjust.ini", "mine");
    (void)prepareDataDirectories(app, user, isMine);
    EXPECT_EQ(folder.get("data/MORVANE/Skins/Adjust.ini"), "mine");

    // A later version: what the person changed stays, all else is renewed.
    (void)folder.put("app/Skins/ResWords.ini", "alt");
    (void)prepareDataDirectories(app, user, isMine);
    EXPECT_EQ(folder.get("data/MORVANE/Skins/ResWords.ini"), "alt") << "it is added";
    (void)folder.put("data/MORVANE/Skins/ResWords.res", "compiled");
    (void)folder.put("app/Skins/ResWords.ini", "neuer");
    std::filesystem::remove(app + "Skins/Adjust.ini");
    (void)folder.put("app/Skins/Adjust.ini", "other records");
    (void)prepareDataDirectories(app, user, isMine);
    EXPECT_EQ(folder.get("data/MORVANE/Skins/ResWords.ini"), "neuer");
    EXPECT_FALSE(folder.has("data/MORVANE/Skins/ResWords.res"));
    EXPECT_EQ(folder.get("data/MORVANE/Skins/Adjust.ini"), "mine");

    // A copy that was broken off, and a place where none can be made.
    std::filesystem::remove_all(user + "Skins");
    (void)folder.put("data/MORVANE/Skins.new/half", "");
    (void)prepareDataDirectories(app, user, isMine);
    EXPECT_TRUE(folder.has("data/MORVANE/Skins/Adjust.ini"));
    EXPECT_FALSE(folder.has("data/MORVANE/Skins/half"));
    const auto nowhere = folder.put("file", "") + "/";
    EXPECT_EQ(prepareDataDirectories(app, nowhere, isMine).writable, app);

    MemorySettings settings;
    DiskFileSystem disk;
    const test::FakeDrives drives;
    EnsureDefaultSettings(settings, {app, disk, drives, PathStyle::Posix, directories.writable});
    EXPECT_EQ(settings.ReadSetting("Skins"), user + "Skins/");
    EXPECT_EQ(settings.ReadSetting("ConnectFile"), user + "Connect/Connect.ini");
    EXPECT_EQ(settings.ReadSetting("LogoFile"), app + "Logo.ico");
}

} // namespace
} // namespace quillmere
