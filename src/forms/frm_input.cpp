// Held by tests/forms/messages_test.cpp.

#include "forms/frm_input.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillmere {

namespace {

constexpr int kWidthPx = 380;

} // namespace

frmInput::frmInput(Session& session, QWidget* parent)
    : Form(session, "frmInput", parent)
{
    setWindowTitle("Eingabe");
    lblInput->setBuddy(txtInput);
    btnOk->setText("&OK");
    btnOk->setDefault(true);
    btnCancel->setText("&Abbrechen");
    btnCancel->setAutoDefault(false);
    layOut();
    connect(btnOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmInput::layOut()
{
    for (auto* label : {lblDescription, lblInput}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    txtInput->setMinimumWidth(kWidthPx);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnCancel);
    buttons->addWidget(btnOk);
    auto* rows = new QVBoxLayout(this);
    for (QWidget* row : std::initializer_list<QWidget*>{lblDescription, lblInput, txtInput})
        rows->addWidget(row);
    rows->addSpacing(8);
    rows->addLayout(buttons);
}

void frmInput::SetParameters(const InputTexts& texts)
{
    loadTexts();
    if (!texts.caption.isEmpty()) setWindowTitle(texts.caption);
    lblDescription->setText(texts.description);
    lblDescription->setHidden(texts.description.isEmpty());
    lblInput->setText(texts.label);
    txtInput->setText(texts.start);
    txtInput->selectAll();
    txtInput->setFocus();
}

QString frmInput::input() const
{
    return result() == QDialog::Accepted ? txtInput->text() : QString();
}

} // namespace quillmere
