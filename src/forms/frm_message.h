#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace quillmere {

/// A note that can be silenced: btnOk writes "No" into the note's setting where chkShowNote is
/// checked, else "Yes". All other ways out leave the setting as it is.
class frmMessage : public Form {
    Q_OBJECT

public:
    explicit frmMessage(Session& session, QWidget* parent = nullptr);

    /// Gives the form the texts of a note.
    void SetInitializations(Note kind);

    bool Cancelled = true; ///< until btnOk is pressed
    Note MessageKind = Note::Plain;

private:
    void layOut();
    void btnOk_Click();

    QLabel* const picOpenTemplate = named<QLabel>("picOpenTemplate", this);
    QLabel* const lblDescription = named<QLabel>("lblDescription", this);
    QCheckBox* const chkShowNote = named<QCheckBox>("chkShowNote", this);
    QPushButton* const btnOk = named<QPushButton>("btnOk", this);
    QPushButton* const btnCancel = named<QPushButton>("btnCancel", this);
};

} // namespace quillmere
