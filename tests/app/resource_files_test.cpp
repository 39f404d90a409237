#include "app/form_resources.h"
#include "app/settings.h"
#include "app/word_resources.h"
#include "document/failure.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace quillmere {
namespace {

constexpr const char* kWords = "<word id=2>Zwei<br><?></word>";
constexpr const char* kForms = "<Form id=frmA skip=-1><control id=btnOk>Los</control></Form>";

class ResourceFiles : public testing::Test {
protected:
    ResourceFiles() { settings.WriteSetting("Skins", folder.path()); }
    test::ScratchFolder folder;
    MemorySettings settings;
    WordResources words;
    FormResources forms;
};

TEST_F(ResourceFiles, TheTextFormIsCompiledOnceAndThenTheCompiledOneWins)
{
    folder.put("ResWords.ini", kWords);
    words.LoadWordResources(settings);
    EXPECT_EQ(words.GetWord(2, {"a"}), "Zwei\r\na");
    EXPECT_EQ(folder.get("ResWords.res"), recordsOfWords(words.table()));

    folder.put("ResWords.ini", "<word id=2>Neu</word>");
    WordResources next;
    next.LoadWordResources(settings);
    EXPECT_EQ(next.table(), words.table());
    std::filesystem::remove(folder.path() + "ResWords.res");
    next.LoadWordResources(settings);
    EXPECT_EQ(next.GetWord(2), "Neu");
}

TEST_F(ResourceFiles, FormsNeedBothCompiledFiles)
{
    folder.put("ResForms.ini", kForms);
    forms.LoadFormResources(settings);
    ASSERT_EQ(forms.table().controls.size(), 1U);
    EXPECT_TRUE(folder.has("ResForms1.res") && folder.has("ResForms2.res"));

    folder.put("ResForms.ini", "<Form id=frmB>");
    FormResources next;
    next.LoadFormResources(settings);
    EXPECT_EQ(next.table(), forms.table());
    std::filesystem::remove(folder.path() + "ResForms2.res");
    next.LoadFormResources(settings);
    EXPECT_NE(findForm(next.table(), "frmB", 0), nullptr);
    EXPECT_TRUE(folder.has("ResForms2.res")); // of no bytes, as there is no control
}

TEST_F(ResourceFiles, NothingThereLeavesTheTablesEmpty)
{
    words.LoadWordResources(settings);
    forms.LoadFormResources(settings);
    EXPECT_EQ(words.GetWord(2), "");
    EXPECT_TRUE(forms.table().forms.empty());
    words.WriteWordResources(settings);
    forms.WriteFormResources(settings);
    EXPECT_FALSE(folder.has("ResWords.res") || folder.has("ResForms1.res"));

    folder.put("ResWords.ini", kWords);
    settings.WriteSetting("Skins", "");
    words.LoadWordResources(settings);
    EXPECT_TRUE(words.table().empty());
}

TEST_F(ResourceFiles, WhereTheCompiledFileCannotBeWrittenTheWordsAreThere)
{
    folder.put("ResWords.ini", kWords);
    folder.put("ResForms.ini", kForms);
    std::filesystem::create_directories(folder.path() + "ResWords.res/x"); // in the way
    std::filesystem::create_directories(folder.path() + "ResForms1.res/x");
    words.LoadWordResources(settings);
    forms.LoadFormResources(settings);
    EXPECT_EQ(words.GetWord(2), "Zwei\r\n");
    EXPECT_EQ(forms.table().controls.size(), 1U);
    EXPECT_THROW(words.WriteWordResources(settings), FileFailure);
}

} // namespace
} // namespace quillmere
