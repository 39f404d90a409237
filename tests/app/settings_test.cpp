#include "app/settings.h"

#include "support/fake_platform.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere {
namespace {

class LoggedSettings final : public SettingsStore {
public:
    std::vector<std::string> written;
    MemorySettings values;

    [[nodiscard]] std::string ReadSetting(std::string_view name) const override
    {
        return values.ReadSetting(name);
    }
    void WriteSetting(std::string_view name, std::string_view value) override
    {
        written.push_back(std::string(name) + "=" + std::string(value));
        values.WriteSetting(name, value);
    }
};

using Written = std::vector<std::string>;

struct Machine {
    test::FakeDisk disk;
    test::FakeDrives drives;
    LoggedSettings settings;
    PathStyle style = PathStyle::Windows;

    Written ensure()
    {
        settings.written.clear();
        EnsureDefaultSettings(
            settings, {style == PathStyle::Windows ? "C:\\Q\\" : "/opt/q/", disk, drives, style});
        return settings.written;
    }
};

const Written kSwitches{"ShowSelectTagCorrectMessage=Yes", "InsertQuillmereForWmlFiles=Yes",
    "LastFtpProfile=XXX", "MorvaneHomepage=http://www.morvane.example/", "ShowImageMessage=Yes",
    "ShowOptionMessage=Yes", "ShowStartDialog=Yes", "StandardOutput=No"};

Written switchesAnd(Written rest)
{
    rest.insert(rest.begin(), kSwitches.begin(), kSwitches.end());
    return rest;
}

TEST(EnsureDefaultSettings, SeedsAnEmptyStoreInItsOrder)
{
    Machine windows;
    EXPECT_EQ(windows.ensure(),
        switchesAnd({R"(Skins=C:\Q\Skins\)", R"(ConnectFile=C:\Q\Connect\Connect.ini)",
            R"(HelpFile=C:\Q\Help\Quillmere_Help.hlp)", R"(HyperlinkFile=C:\Q\Links\Links.htm)",
            R"(LogoFile=C:\Q\Logo.ico)"}));
    Machine posix;
    posix.style = PathStyle::Posix;
    EXPECT_EQ(posix.ensure(),
        switchesAnd({"Skins=/opt/q/Skins/", "ConnectFile=/opt/q/Connect/Connect.ini",
            "HelpFile=/opt/q/Help/Quillmere_Help.html", "HyperlinkFile=/opt/q/Links/Links.htm",
            "LogoFile=/opt/q/Logo.ico"}));
}

TEST(EnsureDefaultSettings, LeavesWhatIsSetAndReplacesWhatHasVanished)
{
    Machine machine;
    for (const auto* name : {"ConnectFile", "HelpFile", "HyperlinkFile", "LogoFile"}) {
        machine.settings.WriteSetting(name, "D:\\mine");
        machine.disk.files.insert("D:\\mine");
    }
    machine.settings.WriteSetting("Skins", "D:\\skins\\");
    machine.disk.files.insert({"D:\\skins\\Adjust.ini", "D:\\skins\\AdjuPrev.ini"});
    machine.settings.WriteSetting("ShowStartDialog", "No");
    machine.settings.WriteSetting("StandardOutput", "Yes");
    Written expected = kSwitches;
    std::erase_if(expected, [](const std::string& row) {
        return row.starts_with("ShowStartDialog") || row.starts_with("StandardOutput");
    });
    EXPECT_EQ(machine.ensure(), expected);
    EXPECT_EQ(machine.ensure(), Written{});

    machine.disk.files.erase("D:\\skins\\Adjust.ini");
    EXPECT_EQ(machine.ensure(), Written{R"(Skins=C:\Q\Skins\)"});
    machine.disk.files.insert({R"(C:\Q\Skins\Adjust.ini)", R"(C:\Q\Skins\AdjuPrev.ini)"});
    machine.disk.files.erase("D:\\mine");
    EXPECT_EQ(machine.ensure().size(), 4U);
}

TEST(EnsureDefaultSettings, TemplatesGoToTheFirstCdRomTogether)
{
    Machine machine;
    (void)machine.ensure();
    machine.disk.files
        = {R"(C:\Q\Skins\Adjust.ini)", R"(C:\Q\Skins\AdjuPrev.ini)", R"(C:\Q\Connect\Connect.ini)",
            R"(C:\Q\Help\Quillmere_Help.hlp)", R"(C:\Q\Links\Links.htm)", R"(C:\Q\Logo.ico)"};
    machine.settings.WriteSetting("ImageTemplate", "X:\\mine");
    machine.drives.kinds = {{"A:\\", DriveKind::Removable}, {"C:\\", DriveKind::Fixed}};
    EXPECT_EQ(machine.ensure(), Written{}); // no CD-ROM
    machine.drives.kinds.insert(
        machine.drives.kinds.end(), {{"E:\\", DriveKind::CdRom}, {"F:\\", DriveKind::CdRom}});
    EXPECT_EQ(machine.ensure(),
        (Written{R"(ImageTemplate=E:\Template\Cliparts)", R"(WmlTemplate=E:\Template\Pages)"}));
    machine.drives.kinds.erase(machine.drives.kinds.begin() + 2);
    EXPECT_EQ(machine.ensure(), Written{});
    machine.style = PathStyle::Posix;
    machine.settings.WriteSetting("WmlTemplate", "");
    machine.drives.kinds = {{"/", DriveKind::Fixed}, {"/media/cd/", DriveKind::CdRom}};
    (void)machine.ensure();
    EXPECT_EQ(machine.settings.ReadSetting("WmlTemplate"), "/media/cd/Template/Pages");
}

TEST(Settings, HaveOneRuleEach)
{
    std::set<std::string_view> names;
    for (const auto& rule : kSettings)
        EXPECT_TRUE(names.insert(rule.name).second) << rule.name;
}

} // namespace
} // namespace quillmere
