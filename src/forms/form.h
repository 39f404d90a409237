#pragma once

#include "forms/session.h"

#include <QDialog>
#include <QString>

#include <functional>

namespace quillmere {

/// A dialog of the program: its name finds its texts in the resources. Escape closes it, F1 and
/// helpWanted() show the help by way of the main window. The routines of its events run in
/// trapped().
class Form : public QDialog {
    Q_OBJECT

public:
    /// Lays the texts of the resources over the form, the first time only. A form whose texts
    /// change with what it is given calls this ahead of setting them.
    void loadTexts();
    /// loadTexts(), then shows the form modally; the result is exec()'s.
    int showModally();

signals:
    /// F1 or the help button: the page of this form is wanted.
    void helpWanted(const QString& formName);

protected:
    Form(Session& session, const QString& name, QWidget* parent);

    [[nodiscard]] Session& session() const { return session_; }
    /// Runs a routine of an event; a failure is shown.
    void trap(const std::function<void()>& routine) { trapRoutine(routine); }
    void keyPressEvent(QKeyEvent* event) override;

private:
    void trapRoutine(const std::function<void()>& routine);

    Session& session_;
    bool hasTexts_ = false;
};

} // namespace quillmere
