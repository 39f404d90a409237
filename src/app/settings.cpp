// The rows of kSettings are walked once, in their order. Held by settings_test.cpp, in both path
// styles.

#include "app/settings.h"

#include <algorithm>
#include <optional>

namespace quillmere {

namespace {

constexpr std::string_view kSkinFiles[] = {"AdjuPrev.ini", "Adjust.ini"};

// The Windows help viewer has a format of its own; elsewhere help is a page.
std::string inStyle(std::string_view path, PathStyle style)
{
    std::string result(path);
    if (style == PathStyle::Windows) return result;
    std::replace(result.begin(), result.end(), '\\', '/');
    constexpr std::string_view kWindowsHelp = ".hlp";
    if (result.ends_with(kWindowsHelp))
        result.replace(result.size() - kWindowsHelp.size(), kWindowsHelp.size(), ".html");
    return result;
}

std::optional<std::string> firstCdRom(const Drives& drives)
{
    for (const auto& root : drives.roots())
        if (drives.kindOf(root) == DriveKind::CdRom) return root;
    return std::nullopt;
}

bool holdsSkins(const std::string& directory, const FileSystem& files)
{
    return std::all_of(std::begin(kSkinFiles), std::end(kSkinFiles),
        [&](std::string_view name) { return files.fileExists(directory + std::string(name)); });
}

bool isOutdated(const SettingRule& rule, const std::string& value, const FileSystem& files)
{
    switch (rule.when) {
    case SeedWhen::Empty:
        return value.empty();
    case SeedWhen::FileMissing:
    case SeedWhen::WrittenFileMissing:
        return value.empty() || !files.fileExists(value);
    case SeedWhen::SkinsMissing:
        return value.empty() || !holdsSkins(value, files);
    case SeedWhen::CdRomTemplates:
    case SeedWhen::Never:
        break;
    }
    return false;
}

std::string seedOf(const SettingRule& rule, const ProgramPlaces& places)
{
    if (rule.when == SeedWhen::Empty) return std::string(rule.seed);
    const bool isWritten
        = rule.when == SeedWhen::SkinsMissing || rule.when == SeedWhen::WrittenFileMissing;
    const bool isElsewhere = isWritten && !places.writablePath.empty();
    return (isElsewhere ? places.writablePath : places.appPath) + inStyle(rule.seed, places.style);
}

bool isTemplateRule(const SettingRule& rule)
{
    return rule.when == SeedWhen::CdRomTemplates;
}

// Both go to the CD-ROM together, so that pages and cliparts come from one place: a value that was
// set is replaced as well.
void seedTemplates(SettingsStore& settings, const ProgramPlaces& places)
{
    const bool isComplete
        = std::none_of(std::begin(kSettings), std::end(kSettings), [&](const SettingRule& rule) {
              return isTemplateRule(rule) && settings.ReadSetting(rule.name).empty();
          });
    if (isComplete) return;
    const auto cdRom = firstCdRom(places.drives);
    if (!cdRom) return;
    for (const auto& rule : kSettings)
        if (isTemplateRule(rule))
            settings.WriteSetting(rule.name, *cdRom + inStyle(rule.seed, places.style));
}

} // namespace

void EnsureDefaultSettings(SettingsStore& settings, const ProgramPlaces& places)
{
    for (const auto& rule : kSettings) {
        if (isOutdated(rule, settings.ReadSetting(rule.name), places.files))
            settings.WriteSetting(rule.name, seedOf(rule, places));
    }
    seedTemplates(settings, places);
}

std::string MemorySettings::ReadSetting(std::string_view name) const
{
    const auto found = values_.find(name);
    return found == values_.end() ? std::string() : found->second;
}

void MemorySettings::WriteSetting(std::string_view name, std::string_view value)
{
    values_.insert_or_assign(std::string(name), std::string(value));
}

} // namespace quillmere
