#pragma once

#include "document/platform/drives.h"
#include "document/platform/file_system.h"
#include "document/platform/settings_store.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace quillmere {

/// When a setting gets its seed.
enum class SeedWhen {
    Empty, ///< no value yet
    FileMissing, ///< no value yet, or the file that it names is not there
    WrittenFileMissing, ///< the same for a file that the program writes
    SkinsMissing, ///< no value yet, or no directory of skin files
    CdRomTemplates, ///< this or the other template directory has no value, and there is a CD-ROM
    Never
};

/// A persistent setting. Paths among the seeds are in the style of Windows and relative: to the
/// program's directory, or those of templates to the root of the CD-ROM.
struct SettingRule {
    std::string_view name;
    SeedWhen when = SeedWhen::Never;
    std::string_view seed;
};

/// All settings, in the order in which they are seeded.
inline constexpr SettingRule kSettings[] = {
    {"ShowSelectTagCorrectMessage", SeedWhen::Empty, "Yes"},
    {"InsertQuillmereForWmlFiles", SeedWhen::Empty, "Yes"},
    {"LastFtpProfile", SeedWhen::Empty, "XXX"},
    {"MorvaneHomepage", SeedWhen::Empty, "http://www.morvane.example/"},
    {"ShowImageMessage", SeedWhen::Empty, "Yes"},
    {"ShowOptionMessage", SeedWhen::Empty, "Yes"},
    {"ShowStartDialog", SeedWhen::Empty, "Yes"},
    {"StandardOutput", SeedWhen::Empty, "No"},
    {"Skins", SeedWhen::SkinsMissing, "Skins\\"},
    {"ConnectFile", SeedWhen::WrittenFileMissing, "Connect\\Connect.ini"},
    {"HelpFile", SeedWhen::FileMissing, "Help\\Quillmere_Help.hlp"},
    {"HyperlinkFile", SeedWhen::FileMissing, "Links\\Links.htm"},
    {"LogoFile", SeedWhen::FileMissing, "Logo.ico"},
    {"ImageTemplate", SeedWhen::CdRomTemplates, "Template\\Cliparts"},
    {"WmlTemplate", SeedWhen::CdRomTemplates, "Template\\Pages"},
    {"HelpFileBigFont", SeedWhen::Never, ""},
    {"LastPath1", SeedWhen::Never, ""},
    {"LastKonverterChoicePath", SeedWhen::Never, ""},
    {"RecentDeck1", SeedWhen::Never, ""},
    {"RecentDeck2", SeedWhen::Never, ""},
    {"RecentDeck3", SeedWhen::Never, ""},
    {"RecentDeck4", SeedWhen::Never, ""},
    {"RecentDeck5", SeedWhen::Never, ""},
    {"RecentDeck6", SeedWhen::Never, ""},
    {"RecentDeck7", SeedWhen::Never, ""},
    {"RecentDeck8", SeedWhen::Never, ""},
};

/// What the seeds are made of and tested against.
struct ProgramPlaces {
    std::string appPath; ///< the program's directory, with its separator
    const FileSystem& files;
    const Drives& drives;
    PathStyle style = kNativePathStyle;
    std::string writablePath{}; ///< of Skins and Connect where `appPath` cannot be written
};

/// Writes the seed of each setting that has none or names what is not there any more. The template
/// directories go to the first CD-ROM as soon as one of the two is empty, and stay empty where
/// there is none. In the Posix style the help file is an HTML file.
void EnsureDefaultSettings(SettingsStore& settings, const ProgramPlaces& places);

/// Settings of one run, kept nowhere.
class MemorySettings final : public SettingsStore {
public:
    [[nodiscard]] std::string ReadSetting(std::string_view name) const override;
    void WriteSetting(std::string_view name, std::string_view value) override;

private:
    std::map<std::string, std::string, std::less<>> values_;
};

} // namespace quillmere
