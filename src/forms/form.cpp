#include "forms/form.h"

#include "forms/overlay.h"
#include "forms/trap.h"

#include <QKeyEvent>

#include <utility>

namespace quillmere {

Form::Form(Session& session, const QString& name, QWidget* parent)
    : QDialog(parent)
    , session_(session)
{
    setObjectName(name);
    connect(this, &Form::helpWanted, this, [this] {
        if (session_.window != nullptr) trap([this] { session_.window->ShowHelp(); });
    });
}

void Form::loadTexts()
{
    if (!std::exchange(hasTexts_, true)) OverlayForm(*this, session_);
}

int Form::showModally()
{
    loadTexts();
    session_.gSurfaceActive = false;
    return exec();
}

void Form::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1)
        emit helpWanted(objectName());
    else
        QDialog::keyPressEvent(event);
}

void Form::trapRoutine(const std::function<void()>& routine)
{
    trapped(session_.messages, routine);
}

} // namespace quillmere
