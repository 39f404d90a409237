// Held by frm_prepare_save_test.cpp.

#include "editor/window/frm_deck_changes.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillmere {
namespace {

constexpr int kMarginPx = 16;
constexpr int kSpacingPx = 8;
constexpr int kListHeightPx = 260;
constexpr int kWidthPx = 640;
const auto kIndent = QStringLiteral("      ");

QString headingOf(const DeckCost& cost)
{
    return cost.count == 0 ? cost.name : QStringLiteral("%1 × %2").arg(cost.count).arg(cost.name);
}

} // namespace

frmDeckChanges::frmDeckChanges(Session& session, QWidget* parent)
    : Form(session, QStringLiteral("frmDeckChanges"), parent)
{
    loadTexts();
    lstChanges->setWordWrap(true);
    lstChanges->setMinimumHeight(kListHeightPx);
    answerBy(btnKeep, static_cast<int>(CostsAnswer::Keep));
    answerBy(btnStandardOnce, static_cast<int>(CostsAnswer::StandardOnce));
    answerBy(btnStandardAlways, static_cast<int>(CostsAnswer::StandardAlways));
    answerBy(btnLeave, Rejected);
    answerBy(btnMend, Accepted);
    for (auto* control : {static_cast<QWidget*>(lblLost), static_cast<QWidget*>(lblLostNote),
             static_cast<QWidget*>(lblMended), static_cast<QWidget*>(lblMendedNote),
             static_cast<QWidget*>(btnKeep), static_cast<QWidget*>(btnStandardOnce),
             static_cast<QWidget*>(btnStandardAlways), static_cast<QWidget*>(btnLeave),
             static_cast<QWidget*>(btnMend)})
        control->hide();
}

frmDeckChanges::frmDeckChanges(Session& session, const DeckCosts& costs, QWidget* parent)
    : frmDeckChanges(session, parent)
{
    for (const auto& cost : costs) {
        addRow(headingOf(cost), true);
        for (const auto& example : cost.examples)
            addRow(kIndent + example, false);
        if (static_cast<std::size_t>(cost.examples.size()) < cost.count)
            addRow(kIndent + u'…', false);
    }
    layOut(lblLost, lblLostNote, {btnKeep, btnStandardAlways, btnStandardOnce});
}

frmDeckChanges::frmDeckChanges(Session& session, const QStringList& mends, QWidget* parent)
    : frmDeckChanges(session, parent)
{
    lstChanges->addItems(mends);
    layOut(lblMended, lblMendedNote, {btnLeave, btnMend});
}

void frmDeckChanges::addRow(const QString& text, bool isHeading)
{
    auto* row = new QListWidgetItem(text, lstChanges);
    auto font = row->font();
    font.setBold(isHeading);
    row->setFont(font);
}

void frmDeckChanges::answerBy(QPushButton* button, int result)
{
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
}

/// The last button is the one that Return presses.
void frmDeckChanges::layOut(
    QLabel* heading, QLabel* note, std::initializer_list<QPushButton*> buttons)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(kSpacingPx);
    row->addStretch();
    for (auto* button : buttons) {
        row->addWidget(button);
        button->setVisible(true);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMarginPx, kMarginPx, kMarginPx, kMarginPx);
    column->setSpacing(kSpacingPx);
    column->addWidget(heading);
    column->addWidget(lstChanges, 1);
    column->addWidget(note);
    column->addLayout(row);
    for (auto* label : {heading, note}) {
        label->setWordWrap(true);
        label->setVisible(true);
    }
    lstChanges->setAccessibleName(heading->text());
    resize(kWidthPx, column->totalHeightForWidth(kWidthPx));
    auto* usual = *std::prev(buttons.end());
    usual->setDefault(true);
    usual->setFocus();
}

CostsAnswer frmDeckChanges::ask(Session& session, const DeckCosts& costs, QWidget* parent)
{
    return static_cast<CostsAnswer>(frmDeckChanges(session, costs, parent).showModally());
}

bool frmDeckChanges::mayMend(Session& session, const QStringList& mends, QWidget* parent)
{
    return frmDeckChanges(session, mends, parent).showModally() == Accepted;
}

} // namespace quillmere
