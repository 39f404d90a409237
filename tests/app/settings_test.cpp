#include "app/settings.h"

#include "support/fake_platform.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

/// A machine whose settings are seeded; what a seeding changes is told as "NAME=VALUE".
struct Machine {
    test::FakeDisk disk;
    test::FakeDrives drives;
    MemorySettings settings;
    PathStyle style = PathStyle::Windows;

    std::vector<std::string> ensure()
    {
        MemorySettings before;
        for (const auto& rule : kSettings)
            before.WriteSetting(rule.name, settings.ReadSetting(rule.name));
        const bool isWindows = style == PathStyle::Windows;
        EnsureDefaultSettings(settings, {isWindows ? "C:\\Q\\" : "/opt/q/", disk, drives, style});
        std::vector<std::string> changed;
        for (const auto& rule : kSettings) {
            const auto value = settings.ReadSetting(rule.name);
            if (value != before.ReadSetting(rule.name))
                changed.push_back(std::string(rule.name) + "=" + value);
        }
        return changed;
    }
};

using Changed = std::vector<std::string>;

TEST(EnsureDefaultSettings, SeedsWhatIsMissingAndReplacesWhatHasVanished)
{
    Machine windows;
    const auto all = windows.ensure();
    EXPECT_EQ(all,
        (Changed{"ShowSelectTagCorrectMessage=Yes", "InsertQuillmereForWmlFiles=Yes",
            "LastFtpProfile=XXX", "MorvaneHomepage=http://www.morvane.example/",
            "ShowImageMessage=Yes", "ShowOptionMessage=Yes", "ShowStartDialog=Yes",
            "StandardOutput=No", R"(Skins=C:\Q\Skins\)", R"(ConnectFile=C:\Q\Connect\Connect.ini)",
            R"(HelpFile=C:\Q\Help\Quillmere_Help.hlp)", R"(HyperlinkFile=C:\Q\Links\Links.htm)",
            R"(LogoFile=C:\Q\Logo.ico)"}));
    Machine posix;
    posix.style = PathStyle::Posix;
    EXPECT_EQ(posix.ensure().at(10), "HelpFile=/opt/q/Help/Quillmere_Help.html");
    EXPECT_EQ(posix.settings.ReadSetting("ConnectFile"), "/opt/q/Connect/Connect.ini");

    windows.settings.WriteSetting("ConnectFile", "D:\\mine");
    windows.settings.WriteSetting("Skins", "D:\\skins\\");
    windows.settings.WriteSetting("StandardOutput", "Yes");
    windows.disk.files = {"D:\\mine", "D:\\skins\\Adjust.ini", "D:\\skins\\AdjuPrev.ini"};
    EXPECT_EQ(windows.ensure(), Changed{});
    windows.disk.files.erase("D:\\skins\\Adjust.ini");
    EXPECT_EQ(windows.ensure(), Changed{R"(Skins=C:\Q\Skins\)"});
    windows.disk.files.erase("D:\\mine");
    EXPECT_EQ(windows.ensure(), Changed{R"(ConnectFile=C:\Q\Connect\Connect.ini)"});
}

} // namespace
} // namespace quillmere
