// The texts that ship, German and English: complete, alike in their ids, and within the widths that
// their compiled form has.

#include "app/form_table.h"
#include "document/platform/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace quillmere {
namespace {

const std::string kData = QUILLMERE_SOURCE_DIR "/data/";

std::string textOf(const std::string& file)
{
    return readFile(kData + file);
}

constexpr const char* kForms[] = {"frmPrepare", "frmArea", "frmTable", "frmOption", "frmImage",
    "frmLinks", "frmTextFormat", "frmJustify", "frmDeckOpen", "frmAskProjektDir",
    "frmOpenFromProjektDir", "frmAskIndexPage", "frmFolder", "frmTemplateMultiWml",
    "frmTemplateStartWml", "frmClipart", "frmPicKonvChoiceImage", "frmPicKonvImage",
    "frmPicKonvSaveImage", "frmUploadProfil", "frmUploadExtended", "frmPreview", "frmSystem",
    "frmSystemEditorStart", "frmSystemStart", "frmSystemProportion", "frmBrowserColor",
    "frmFindColor", "frmStart", "frmMessage", "frmInput", "frmAssistent", "frmAboutQuillmere"};

TEST(ShippedTexts, EveryFormHasItsEntryForTheLoad)
{
    const auto table = formsFromText(textOf("Skins/ResForms.ini"));
    for (const auto* form : kForms)
        EXPECT_NE(findForm(table, form), nullptr) << form;
    // the entries of one form have different variants, those of one form's controls different ids
    std::set<std::pair<std::string, int>> forms;
    for (const auto& form : table.forms)
        EXPECT_TRUE(forms.emplace(form.Id, form.Skip).second) << form.Id;
    std::set<std::tuple<std::string, int, std::string, int>> controls;
    for (const auto& control : table.controls)
        EXPECT_TRUE(
            controls.emplace(control.FormId, control.FormSkip, control.Id, control.Index).second)
            << control.FormId << ' ' << control.Id;
}

TEST(ShippedTexts, NothingIsCutByTheCompiledForm)
{
    for (const auto* file : {"Skins/ResForms.ini", "Skins.en/ResForms.ini"}) {
        const auto table = formsFromText(textOf(file));
        for (const auto& control : table.controls) {
            EXPECT_LT(control.Text.size(), 500U) << control.Id;
            EXPECT_LT(control.List.size(), 255U) << control.Id;
            EXPECT_LT(control.Tooltip.size(), 255U) << control.Id;
        }
        EXPECT_EQ(formsFromRecords(recordsOfForms(table), recordsOfControls(table)), table) << file;
    }
}

TEST(ShippedTexts, BothLanguagesHaveTheSameEntries)
{
    const auto german = formsFromText(textOf("Skins/ResForms.ini"));
    const auto english = formsFromText(textOf("Skins.en/ResForms.ini"));
    ASSERT_EQ(german.forms.size(), english.forms.size());
    ASSERT_EQ(german.controls.size(), english.controls.size());
    for (std::size_t i = 0; i < german.controls.size(); ++i) {
        const auto& a = german.controls[i];
        const auto& b = english.controls[i];
        SCOPED_TRACE(a.FormId + ' ' + a.Id);
        EXPECT_EQ(a.Id, b.Id);
        EXPECT_EQ(a.Index, b.Index);
        EXPECT_EQ(a.Text.empty(), b.Text.empty());
        EXPECT_EQ(a.Tooltip.empty(), b.Tooltip.empty());
        EXPECT_EQ(itemsOfList(a.List).size(), itemsOfList(b.List).size());
    }
}

} // namespace
} // namespace quillmere
