#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillmere {

/// What frmInput is opened with.
struct InputTexts {
    QString caption; ///< of the window
    QString description; ///< what the line is for; "" for none
    QString label; ///< of the line
    QString start; ///< stands in the line, marked, so that typing replaces it
};

/// Asks for one line.
class frmInput : public Form {
    Q_OBJECT

public:
    explicit frmInput(Session& session, QWidget* parent = nullptr);

    void SetParameters(const InputTexts& texts);
    /// The line, once btnOk was pressed; "" after any other way out.
    [[nodiscard]] QString input() const;

private:
    void layOut();

    QLabel* const lblDescription = named<QLabel>("lblDescription", this);
    QLabel* const lblInput = named<QLabel>("lblInput", this);
    QLineEdit* const txtInput = named<QLineEdit>("txtInput", this);
    QPushButton* const btnOk = named<QPushButton>("btnOk", this);
    QPushButton* const btnCancel = named<QPushButton>("btnCancel", this);
};

} // namespace quillmere
