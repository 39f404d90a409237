#include "skins/user_devices.h"

#include "app/settings.h"
#include "document/failure.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr const char* kFile = "<Max Height=1 Width=1>\r\n" // ahead of the first device: of none
                              "<Geraet Name=C35>\r\n"
                              "<Representation Producer=Siemens Group=\"35\">\r\n"
                              "  <Min Height=20 Width=40>\r\n"
                              "<max width=200 height=120>\n"
                              "<Default Height=-5 Width=+101> <Max Height=7 Width=8>\r"
                              "\r\n"
                              "<Geraet  Name=7110 alt>\r\n"
                              "<Representation Producer=Nokia\r\n";

TEST(UserDevices, AreReadLineByLine)
{
    const auto devices = readUserDevices(kFile);
    ASSERT_EQ(devices.size(), 3U);
    const UserDevice& first = devices[0];
    EXPECT_EQ(first.Name, "C35");
    EXPECT_EQ(first.Producer, "Siemens");
    EXPECT_EQ(first.Group, "\"35\""); // quotes are part of a value
    EXPECT_EQ(first.MinHeight, 20);
    EXPECT_EQ(first.MinWidth, 40);
    EXPECT_EQ(first.MaxHeight, -5) << "the first height of the line, whichever tag it stands in";
    EXPECT_EQ(first.DefaultWidth, 101);
    EXPECT_EQ(devices[1].Name, "Name=7110") << "the value begins behind the second blank";
    EXPECT_EQ(devices[1].Producer, "Nokia") << "a tag that is not closed ends with its line";
    EXPECT_EQ(devices[2].Name, "");
}

TEST(UserDevices, SizesThatAreNoNumbersOf16BitsFail)
{
    const std::string device = "<Geraet Name=x>\n<Min Height=";
    for (const char* size : {"a Width=1>", "1>", "1 Width=2/>"})
        EXPECT_THROW((void)readUserDevices(device + size), TypeMismatch) << size;
    for (const char* size : {"32768 Width=1>", "99999999999 Width=1>"})
        EXPECT_THROW((void)readUserDevices(device + size), Overflow) << size;
    EXPECT_NO_THROW((void)readUserDevices(device + "-32768 Width=32767>"));
}

TEST(UserDevices, AFailureLeavesTheListAsItWas)
{
    const test::ScratchFolder folder;
    MemorySettings settings;
    settings.WriteSetting("Skins", folder.path());
    std::vector<UserDevice> devices(3);
    EXPECT_THROW(ReadUserDevices(devices, settings), FileFailure);
    folder.put("UserDef.ini", "<Geraet Name=a>\n<Max Height=x>");
    EXPECT_THROW(ReadUserDevices(devices, settings), TypeMismatch);
    ReadUserDevices(devices, MemorySettings());
    EXPECT_EQ(devices.size(), 3U);
    folder.put("UserDef.ini", "<Geraet Name=a>");
    ReadUserDevices(devices, settings);
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[0].Name, "a");
}

} // namespace
} // namespace quillmere
