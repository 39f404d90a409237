#include "app/form_resources.h"
#include "app/settings.h"
#include "app/word_resources.h"
#include "document/text/failure.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class ResourceFiles : public testing::Test {
protected:
    ResourceFiles() { settings.WriteSetting("Skins", folder.path()); }
    [[nodiscard]] std::string word()
    {
        WordResources words;
        words.LoadWordResources(settings);
        return words.GetWord(2, {"a"});
    }
    [[nodiscard]] std::string form()
    {
        FormResources forms;
        forms.LoadFormResources(settings);
        return forms.table().forms.empty() ? "" : forms.table().forms.front().Id;
    }
    test::ScratchFolder folder;
    MemorySettings settings;
};

TEST_F(ResourceFiles, TheTextFormIsCompiledOnceAndThenTheCompiledOneWins)
{
    EXPECT_EQ(word() + form(), ""); // nothing is there
    EXPECT_FALSE(folder.has("ResWords.res") || folder.has("ResForms1.res"));
    folder.put("ResWords.ini", "<word id=2>Zwei<br><?></word>");
    folder.put("ResForms.ini", "<Form id=frmA skip=-1><control id=btnOk>Los</control></Form>");
    EXPECT_EQ(word() + form(), "Zwei\r\nafrmA");
    folder.put("ResWords.ini", "<word id=2>Neu</word>");
    folder.put("ResForms.ini", "<Form id=frmB>");
    EXPECT_EQ(word() + form(), "Zwei\r\nafrmA");
    std::filesystem::remove(folder.path() + "ResWords.res");
    std::filesystem::remove(folder.path() + "ResForms2.res"); // both files are needed
    EXPECT_EQ(word() + form(), "NeufrmB");
    EXPECT_TRUE(folder.has("ResForms2.res")); // of no bytes, as there is no control
    settings.WriteSetting("Skins", "");
    EXPECT_EQ(word() + form(), "");
}

TEST_F(ResourceFiles, ACompiledFileThatWasCutOffIsMadeAnewFromTheText)
{
    folder.put("ResWords.ini", "<word id=2>Zwei</word>");
    folder.put("ResForms.ini", "<Form id=frmA skip=-1><control id=btnOk>Los</control></Form>");
    EXPECT_EQ(word() + form(), "ZweifrmA");
    for (const char* name : {"ResWords.res", "ResForms1.res", "ResForms2.res"}) {
        SCOPED_TRACE(name);
        const auto whole = folder.get(name);
        const auto lengths = {std::size_t{0}, std::size_t{9}, whole.size() - 1};
        for (const auto length : lengths) {
            if (length == 0 && std::string(name) == "ResForms2.res") continue; // no controls
            folder.put(name, whole.substr(0, length));
            EXPECT_EQ(word() + form(), "ZweifrmA");
            EXPECT_EQ(folder.get(name), whole);
        }
    }
    std::filesystem::remove(folder.path() + "ResWords.ini");
    folder.put("ResWords.res", folder.get("ResWords.res") + "rest");
    EXPECT_EQ(word(), "Zwei") << "what is there counts where there is no text";
}

TEST_F(ResourceFiles, WhereTheCompiledFileCannotBeWrittenTheTextsAreThere)
{
    folder.put("ResWords.ini", "<word id=2>Zwei</word>");
    folder.put("ResForms.ini", "<Form id=frmA>");
    folder.put("ResWords.res/in the way", "");
    folder.put("ResForms1.res/in the way", "");
    EXPECT_EQ(word() + form(), "ZweifrmA");
    WordResources words;
    words.LoadWordResources(settings);
    EXPECT_THROW(words.WriteWordResources(settings), FileFailure);
}

} // namespace
} // namespace quillmere
