// Held by frm_prepare_tools_test.cpp.

#include "editor/window/deck_costs_form.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillmere {
namespace {

constexpr int kMarginPx = 16;
constexpr int kSpacingPx = 8;
constexpr int kListHeightPx = 220;
constexpr int kWidthPx = 560;

} // namespace

DeckCostsForm::DeckCostsForm(Session& session, const QStringList& costs, QWidget* parent)
    : Form(session, QStringLiteral("frmDeckCosts"), parent)
{
    setWindowTitle(QStringLiteral("Was beim Speichern verloren geht"));
    lblDescription->setText(QStringLiteral(
        "Wenn Sie dieses Dokument so speichern, wie Quillmere es von jeher schreibt, ändert sich "
        "darin, was unten steht. Die Datei ist noch unverändert.\n\nMit der Standardausgabe geht "
        "nichts davon verloren. Sie gilt dann für alle Dokumente."));
    lblDescription->setWordWrap(true);
    lstCosts->addItems(costs);
    lstCosts->setAccessibleName(windowTitle());
    lstCosts->setWordWrap(true);
    lstCosts->setMinimumHeight(kListHeightPx);
    btnKeep->setText(QStringLiteral("&So lassen"));
    btnStandard->setText(QStringLiteral("Standard&ausgabe einschalten"));
    btnStandard->setDefault(true);
    connect(btnKeep, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnStandard, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kSpacingPx);
    buttons->addStretch();
    buttons->addWidget(btnKeep);
    buttons->addWidget(btnStandard);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMarginPx, kMarginPx, kMarginPx, kMarginPx);
    column->setSpacing(kSpacingPx);
    column->addWidget(lblDescription);
    column->addWidget(lstCosts, 1);
    column->addLayout(buttons);
    resize(kWidthPx, column->totalHeightForWidth(kWidthPx));
    btnStandard->setFocus();
}

bool DeckCostsForm::offer(Session& session, const QStringList& costs, QWidget* parent)
{
    DeckCostsForm form(session, costs, parent);
    return form.showModally() == QDialog::Accepted;
}

} // namespace quillmere
