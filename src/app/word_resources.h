#pragma once

#include "app/word_table.h"
#include "document/platform/settings_store.h"
#include "document/platform/words.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace quillmere {

/// The words of the resource files in the directory that the setting `Skins` names.
class WordResources final : public Words {
public:
    /// Reads "ResWords.res" or, where there is none, "ResWords.ini", and then compiles the latter
    /// into the former. So a changed text file takes effect once the compiled one was deleted; one
    /// that does not end with a record is made anew where the text file is there.
    /// Where the compiled file cannot be written the words are there all the same. Without any file
    /// or setting the table stays as it is. Throws FileFailure for a file that cannot be read.
    void LoadWordResources(const SettingsStore& settings);

    /// Writes "ResWords.res". Does nothing for an empty table or setting. Throws FileFailure.
    void WriteWordResources(const SettingsStore& settings) const;

    [[nodiscard]] std::string GetWord(
        int id, std::initializer_list<std::string_view> arguments = {}) const override;

    [[nodiscard]] const WordTable& table() const { return table_; }

private:
    WordTable table_;
};

} // namespace quillmere
