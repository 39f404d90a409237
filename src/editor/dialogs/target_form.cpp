// Held by tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/target_form.h"

#include "editor/elements/typed_values.h"

#include <QVBoxLayout>

namespace quillmere {

TargetForm::TargetForm(Session& session, DesignSurface& surface, const char* name, QWidget* parent)
    : ElementForm(session, surface, name, parent)
{
    objFrmCaption->setTitle("Beschriftung");
    txtCaption->setAccessibleName("Beschriftung");
    btnNew->setText("&OK");
    btnDelete->setText("&Löschen");
    layOut();
}

void TargetForm::layOut()
{
    (new QVBoxLayout(objFrmCaption))->addWidget(txtCaption);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(objFrmCaption);
    rows->addWidget(objFrmLink);
    rows->addStretch();
    rows->addLayout(buttonRow(btnNew, btnDelete));
    txtCaption->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
}

void TargetForm::begin(bool newElement, const Hit& hit, const Titles& titles)
{
    loadTexts();
    NewElement = newElement || !hit.Inside;
    objFrmLink->fillAreas(formText(text_variant::kAreaText, "Bereich"));
    objFrmLink->setDefaults();
    setWindowTitle(NewElement ? formText(text_variant::kNewText, titles.insert)
                              : formText(text_variant::kEditText, titles.edit));
    btnDelete->setVisible(!NewElement);
    txtCaption->setFocus();
}

void TargetForm::showElement(const std::string& caption, const std::string& target)
{
    txtCaption->setText(QString::fromStdU16String(typedFrom(caption)));
    objFrmLink->setTarget(target);
}

} // namespace quillmere
