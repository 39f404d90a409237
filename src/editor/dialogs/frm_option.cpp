// Held by tests/editor/dialogs/frm_option_test.cpp.

#include "editor/dialogs/frm_option.h"

#include "document/platform/word_ids.h"
#include "editor/elements/option_edit.h"
#include "editor/elements/typed_values.h"

#include <QVBoxLayout>

namespace quillmere {

frmOption::frmOption(Session& session, DesignSurface& surface, QWidget* parent)
    : ElementForm(session, surface, "frmOption", parent)
{
    setWindowTitle("Optionsfeld");
    objFrmCaption->setTitle("Beschriftung");
    txtCaption->setAccessibleName("Beschriftung");
    btnNew->setText("&OK");
    btnDelete->setText("&Löschen");
    layOut();
    onClick(btnNew, &frmOption::btnNew_Click);
    onClick(btnDelete, &frmOption::btnDelete_Click);
}

void frmOption::layOut()
{
    (new QVBoxLayout(objFrmCaption))->addWidget(txtCaption);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(objFrmCaption);
    rows->addWidget(objFrmLink);
    rows->addStretch();
    rows->addLayout(buttonRow(btnNew, btnDelete));
    txtCaption->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
}

void frmOption::SetInitializations(bool newElement, const Hit& hit)
{
    loadTexts();
    mOptionFound = hit.Inside;
    mOptionPos = searchPosition(hit);
    NewElement = newElement || !mOptionFound;
    objFrmLink->fillAreas(formText(text_variant::kAreaText, "Bereich"));
    objFrmLink->setDefaults();
    txtCaption->setText(word(word::kOptionText) + QString::number(area() + 1));
    setWindowTitle(NewElement ? formText(text_variant::kNewText, "Optionsfeld einfügen")
                              : formText(text_variant::kEditText, "Optionsfeld bearbeiten"));
    btnDelete->setVisible(!NewElement);
    const auto option = NewElement ? std::nullopt : GetOption(designText(), mOptionPos);
    if (option) {
        txtCaption->setText(QString::fromStdU16String(typedFrom(option->caption)));
        objFrmLink->setTarget(option->target);
    }
    txtCaption->selectAll();
    txtCaption->setFocus();
}

void frmOption::btnNew_Click()
{
    const OptionSettings wanted{
        captionMarkup(txtCaption->text().toStdU16String()), objFrmLink->target()};
    const auto text = designText();
    apply(NewElement ? SetOption(text, mOptionPos, mOptionFound, wanted)
                     : ReplaceOption(text, mOptionPos, wanted));
}

void frmOption::btnDelete_Click()
{
    if (confirms(word::kDeleteOption)) apply(DeleteOption(designText(), mOptionPos, false));
}

} // namespace quillmere
