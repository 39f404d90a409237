// Held by resource_files_test.cpp, on files in a directory of its own.

#include "app/form_resources.h"

#include "document/platform/files.h"
#include "document/text/failure.h"

namespace quillmere {

namespace {

constexpr const char* kFormsFile = "ResForms1.res";
constexpr const char* kControlsFile = "ResForms2.res";
constexpr const char* kTextFile = "ResForms.ini";

/// Files that were cut off lack forms or controls; a table may be without controls.
bool areWhole(const std::string& forms, const std::string& controls)
{
    return !forms.empty() && forms.size() % kFormRecordSize == 0
        && controls.size() % kControlRecordSize == 0;
}

} // namespace

void FormResources::LoadFormResources(const SettingsStore& settings)
{
    const auto skins = settings.ReadSetting("Skins");
    if (skins.empty()) return;
    if (fileExists(skins + kFormsFile) && fileExists(skins + kControlsFile)) {
        const auto forms = readFile(skins + kFormsFile);
        const auto controls = readFile(skins + kControlsFile);
        table_ = formsFromRecords(forms, controls);
        if (areWhole(forms, controls)) return;
    }
    if (!fileExists(skins + kTextFile)) return;
    table_ = formsFromText(readFile(skins + kTextFile));
    try {
        WriteFormResources(settings);
    } catch (const FileFailure&) { // NOLINT(bugprone-empty-catch)
        // a directory without write access: the text file is read again next time
    }
}

void FormResources::WriteFormResources(const SettingsStore& settings) const
{
    const auto skins = settings.ReadSetting("Skins");
    if (skins.empty() || table_.forms.empty()) return;
    // The file that the load asks for last is written last: half a pair is not read.
    replaceFile(skins + kFormsFile, recordsOfForms(table_));
    replaceFile(skins + kControlsFile, recordsOfControls(table_));
}

} // namespace quillmere
