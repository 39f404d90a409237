// Held by tests/forms/assistant_test.cpp.

#include "forms/frm_assistent.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillmere {

namespace {

constexpr int kMarginPx = 24;
constexpr int kSpacingPx = 12;
constexpr int kYields = 2; // so that the form is off the screen before another one opens

/// Lies over all of the choice, also as that grows.
void cover(PictureChoice& choice, ChoiceHighlight& look)
{
    auto* layout = new QHBoxLayout(&choice);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&look);
    auto policy = look.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    look.setSizePolicy(policy);
}

} // namespace

frmAssistent::frmAssistent(Session& session, QWidget* parent)
    : Form(session, "frmAssistent", parent)
{
    setWindowTitle("Willkommen bei Quillmere");
    lblDescription->setText("Womit m\u00f6chten Sie beginnen?");
    btnNew->setText("&Neues Dokument");
    btnNew->setToolTip("Mit einem leeren Bereich anfangen");
    btnOpen->setText("Dokument \u00f6&ffnen");
    btnOpen->setToolTip("Eine vorhandene WML-Datei bearbeiten");
    btnAssistant->setText("Mit &Vorlagen beginnen");
    btnAssistant->setToolTip("Fertige Seiten zu einem Projekt zusammenstellen");
    chkShowAssistant->setText("Beim Start nicht mehr &zeigen");
    layOut();
    const Choice choices[] = {
        {btnNew, picNew, &AssistantActions::newDeck},
        {btnOpen, picOpen, &AssistantActions::openDeck},
        {btnAssistant, picAssistant, &AssistantActions::fromTemplates},
    };
    for (const auto& choice : choices)
        wire(choice);
}

void frmAssistent::layOut()
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMarginPx, kMarginPx, kMarginPx, kMarginPx);
    rows->setSpacing(kSpacingPx);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(lblDescription);
    for (auto* choice : {btnNew, btnOpen, btnAssistant})
        rows->addWidget(choice);
    rows->addSpacing(kSpacingPx);
    rows->addWidget(chkShowAssistant, 0, Qt::AlignLeft);
}

void frmAssistent::wire(const Choice& choice)
{
    auto* look = choice.look;
    cover(*choice.button, *look);
    connect(choice.button, &PictureChoice::highlighted, this,
        [this, look](bool on) { on ? highlight(look) : look->hide(); });
    connect(choice.button, &QAbstractButton::clicked, this,
        [this, action = choice.action] { choose(action); });
}

// One at a time, be it by the mouse or by the keyboard.
void frmAssistent::highlight(const ChoiceHighlight* wanted)
{
    for (auto* look : {picNew, picOpen, picAssistant})
        look->setVisible(look == wanted);
}

void frmAssistent::choose(Action action)
{
    chosen_ = action;
    hide();
    for (int i = 0; i < kYields; ++i)
        QApplication::processEvents();
    accept();
}

void frmAssistent::done(int result)
{
    if (chkShowAssistant->isChecked()) session().settings.WriteSetting("ShowStartDialog", "No");
    Form::done(result);
}

void frmAssistent::showAndRun(Session& session, const AssistantActions& actions, QWidget* parent)
{
    Action chosen = nullptr;
    {
        frmAssistent form(session, parent);
        form.showModally();
        chosen = form.chosen_;
    }
    if (chosen != nullptr && actions.*chosen) (actions.*chosen)();
}

} // namespace quillmere
