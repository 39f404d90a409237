#pragma once

#include "editor/dialogs/element_form.h"
#include "editor/dialogs/target_box.h"

#include <QGroupBox>
#include <QLineEdit>

#include <string>

namespace quillmere {

/// What the forms of links and options share: a caption, a target, OK and delete.
class TargetForm : public ElementForm {
    Q_OBJECT

protected:
    TargetForm(Session& session, DesignSurface& surface, const char* name, QWidget* parent);

    /// The German titles of the form, where the resources have none.
    struct Titles {
        const char* insert;
        const char* edit;
    };
    /// Makes the form ready for a new element or the one that the hit lies inside.
    void begin(bool newElement, const Hit& hit, const Titles& titles);
    /// Fills the fields with those of an element; texts are as the design text has them.
    void showElement(const std::string& caption, const std::string& target);

    QGroupBox* const objFrmCaption = named<QGroupBox>("objFrmCaption", this);
    QLineEdit* const txtCaption = named<QLineEdit>("txtCaption", objFrmCaption);
    TargetBox* const objFrmLink = new TargetBox(session(), this);
    QPushButton* const btnNew = named<QPushButton>("btnNew", this);
    QPushButton* const btnDelete = named<QPushButton>("btnDelete", this);

    bool NewElement = true;

private:
    void layOut();
};

} // namespace quillmere
