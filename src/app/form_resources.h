#pragma once

#include "app/form_table.h"
#include "document/platform/settings_store.h"

namespace quillmere {

/// The form resources in the directory that the setting `Skins` names.
class FormResources {
public:
    /// Reads "ResForms1.res" and "ResForms2.res" where both exist, else "ResForms.ini", which it
    /// then compiles into the two. Where they cannot be written the texts are there all the same;
    /// where one does not end with a record they are made anew, if the text file is there.
    /// Without any file or setting the table stays as it is. Throws FileFailure for a file that
    /// cannot be read.
    void LoadFormResources(const SettingsStore& settings);

    /// Writes both compiled files. Does nothing for an empty table or setting. Throws FileFailure.
    void WriteFormResources(const SettingsStore& settings) const;

    [[nodiscard]] const FormTable& table() const { return table_; }

private:
    FormTable table_;
};

} // namespace quillmere
