#pragma once

#include "editor/dialogs/target_form.h"

namespace quillmere {

/// Inserts an entry of a selection list, with its list where the area has none, or changes the
/// marked one. Nothing is refused: an option may have no caption and no target.
class frmOption : public TargetForm {
    Q_OBJECT

public:
    frmOption(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// `hit` is that of the options of the stored area.
    void SetInitializations(bool NewElement, const Hit& hit);

private:
    void btnNew_Click();
    void btnDelete_Click();

    bool mOptionFound = false;
    int mOptionPos = 0;
};

} // namespace quillmere
