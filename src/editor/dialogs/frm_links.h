#pragma once

#include "editor/dialogs/element_form.h"
#include "editor/dialogs/target_box.h"
#include "editor/elements/link_edit.h"

#include <QGroupBox>
#include <QLineEdit>

namespace quillmere {

/// Inserts a link or changes the marked one. Text that is marked becomes the link. A link without a
/// caption, which nobody could see, and one without a target are refused, and so is marked text
/// with what a caption cannot hold.
class frmLinks : public ElementForm {
    Q_OBJECT

public:
    frmLinks(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// `hit` is that of the links of the stored area.
    void SetInitializations(bool NewElement, const Hit& hit);

private:
    void layOut();
    [[nodiscard]] SourceRange markedText() const;
    void markWithoutBlanks();
    void linkMarkedText(const LinkSettings& wanted);
    void btnNew_Click();
    void btnDelete_Click();

    QGroupBox* const objFrmCaption = named<QGroupBox>("objFrmCaption", this);
    QLineEdit* const txtCaption = named<QLineEdit>("txtCaption", objFrmCaption);
    TargetBox* const objFrmLink = new TargetBox(session(), this);
    QPushButton* const btnNew = named<QPushButton>("btnNew", this);
    QPushButton* const btnDelete = named<QPushButton>("btnDelete", this);

    bool NewElement = true;
    bool mLinkFound = false;
    int mLinkPos = 0;
};

} // namespace quillmere
