#include "document/mount_table.h"

#include "support/fake_platform.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr std::string_view kTable = "/dev/sda2 / ext4 rw 0 0\n"
                                    "proc /proc proc rw 0 0\n"
                                    "tmpfs /tmp tmpfs rw 0 0\n"
                                    "half line\n"
                                    "\n"
                                    "/dev/sr0 /media/CD\\040eins iso9660 ro 0 0\n"
                                    "/dev/sdb1 /media/stick vfat rw 0 0\n"
                                    "/dev/sda3 /media/stick/in ext4 rw 0 0\n"
                                    "srv:/x /media/st nfs4 rw 0 0\n"
                                    "/dev/sda4 /tmp ext4 rw 0 0\n"
                                    "bad\\04 /bad\\ x rw 0 0\n";

MountTable table()
{
    return {kTable, [](std::string_view device) { return device == "/dev/sdb1"; }, "/home/me"};
}

TEST(MountTable, TellsTheKindOfTheNearestMount)
{
    const struct {
        const char* path;
        DriveKind kind;
    } rows[] = {{"/", DriveKind::Fixed}, {"/home", DriveKind::Fixed},
        {"/proc/1", DriveKind::Unknown}, {"/media/CD eins/Template", DriveKind::CdRom},
        {"/media/stick", DriveKind::Removable}, {"/media/stick/", DriveKind::Removable},
        {"/media/stick/in/x", DriveKind::Fixed}, {"/media/st/x", DriveKind::Network},
        {"/media/sticker", DriveKind::Fixed}, {"/tmp/x", DriveKind::Fixed}, // the later mount
        {"relative", DriveKind::Missing}};
    for (const auto& row : rows)
        EXPECT_EQ(DriveType(row.path, table()), row.kind) << row.path;
    EXPECT_EQ(table().roots().at(3), "/media/CD eins/");
    EXPECT_EQ(table().personsRoot(), "/home/me/");
}

TEST(MountTable, ReadsTheRunningSystem)
{
    EXPECT_NE(MountTable().kindOf("/"), DriveKind::Missing);
    EXPECT_TRUE(MountTable().personsRoot().ends_with('/'));
}

TEST(DriveType, AsksForTheDriveOfAWindowsPath)
{
    test::FakeDrives drives;
    drives.kinds = {{R"(A:\)", DriveKind::Removable}, {R"(C:\)", DriveKind::Fixed}};
    EXPECT_EQ(DriveType(R"(A:\x\y)", drives, PathStyle::Windows), DriveKind::Removable);
    EXPECT_EQ(DriveType("C:", drives, PathStyle::Windows), DriveKind::Fixed);
    EXPECT_EQ(DriveType("D:", drives, PathStyle::Windows), DriveKind::Missing);
    EXPECT_EQ(DriveType("x", drives, PathStyle::Windows), DriveKind::Unknown);
}

} // namespace
} // namespace quillmere
