#include "forms/form.h"

#include "forms/overlay.h"
#include "forms/trap.h"

#include <QKeyEvent>

namespace quillmere {

Form::Form(Session& session, const QString& name, QWidget* parent)
    : QDialog(parent)
    , session_(session)
{
    setObjectName(name);
}

int Form::showModally()
{
    OverlayForm(*this, session_);
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
