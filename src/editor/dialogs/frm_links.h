#pragma once

#include "editor/dialogs/target_form.h"
#include "editor/elements/link_edit.h"

namespace quillmere {

/// Inserts a link or changes the marked one. Text that is marked becomes the link. A link without a
/// caption, which nobody could see, and one without a target are refused, and so is marked text
/// with what a caption cannot hold.
class frmLinks : public TargetForm {
    Q_OBJECT

public:
    frmLinks(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// `hit` is that of the links of the stored area.
    void SetInitializations(bool NewElement, const Hit& hit);

private:
    [[nodiscard]] SourceRange markedText() const;
    void markWithoutBlanks();
    void linkMarkedText(const LinkSettings& wanted);
    void btnNew_Click();
    void btnDelete_Click();

    int mLinkPos = 0;
};

} // namespace quillmere
