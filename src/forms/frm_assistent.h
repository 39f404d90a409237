#pragma once

#include "forms/form.h"
#include "forms/named.h"
#include "forms/picture_choice.h"

#include <QCheckBox>
#include <QLabel>

#include <functional>

namespace quillmere {

/// What the choices of the assistant lead to.
struct AssistantActions {
    std::function<void()> newDeck;
    std::function<void()> openDeck;
    std::function<void()> fromTemplates;
};

/// The choice that is shown at start: a new deck, one that there is, or templates. Each choice is a
/// button with a look of its own, picNew, picOpen or picAssistant, while it is highlighted. However
/// the form is left, chkShowAssistant keeps it from the next start.
class frmAssistent : public Form {
    Q_OBJECT

public:
    explicit frmAssistent(Session& session, QWidget* parent = nullptr);

    /// Shows the form and, once it is gone, runs what was chosen; nothing after Escape.
    static void showAndRun(Session& session, const AssistantActions& actions, QWidget* parent);

    void done(int result) override;

private:
    using Action = std::function<void()> AssistantActions::*;
    struct Choice {
        PictureChoice* button;
        ChoiceHighlight* look;
        Action action;
    };
    void layOut();
    void wire(const Choice& choice);
    void highlight(const ChoiceHighlight* wanted);
    void choose(Action action);

    QLabel* const lblDescription = named<QLabel>("lblDescription", this);
    PictureChoice* const btnNew = named<PictureChoice>("btnNew", this);
    PictureChoice* const btnOpen = named<PictureChoice>("btnOpen", this);
    PictureChoice* const btnAssistant = named<PictureChoice>("btnAssistant", this);
    ChoiceHighlight* const picNew = named<ChoiceHighlight>("picNew", btnNew);
    ChoiceHighlight* const picOpen = named<ChoiceHighlight>("picOpen", btnOpen);
    ChoiceHighlight* const picAssistant = named<ChoiceHighlight>("picAssistant", btnAssistant);
    QCheckBox* const chkShowAssistant = named<QCheckBox>("chkShowAssistant", this);
    Action chosen_ = nullptr;
};

} // namespace quillmere
