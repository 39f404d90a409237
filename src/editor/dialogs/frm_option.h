#pragma once

#include "editor/dialogs/element_form.h"
#include "editor/dialogs/target_box.h"

#include <QGroupBox>
#include <QLineEdit>

namespace quillmere {

/// Inserts an entry of a selection list, with its list where the area has none, or changes the
/// marked one. Nothing is refused: an option may have no caption and no target.
class frmOption : public ElementForm {
    Q_OBJECT

public:
    frmOption(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// `hit` is that of the options of the stored area.
    void SetInitializations(bool NewElement, const Hit& hit);

private:
    void layOut();
    void btnNew_Click();
    void btnDelete_Click();

    QGroupBox* const objFrmCaption = named<QGroupBox>("objFrmCaption", this);
    QLineEdit* const txtCaption = named<QLineEdit>("txtCaption", objFrmCaption);
    TargetBox* const objFrmLink = new TargetBox(session(), this);
    QPushButton* const btnNew = named<QPushButton>("btnNew", this);
    QPushButton* const btnDelete = named<QPushButton>("btnDelete", this);

    bool NewElement = true;
    bool mOptionFound = false;
    int mOptionPos = 0;
};

} // namespace quillmere
