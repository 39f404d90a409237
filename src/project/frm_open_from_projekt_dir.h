#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace quillmere {

/// Opens another deck of the project directory, that of the open deck.
class frmOpenFromProjektDir : public Form {
    Q_OBJECT

public:
    explicit frmOpenFromProjektDir(Session& session, QWidget* parent = nullptr);

private:
    void layOut();
    void fill();
    void openSelected();

    QLabel* const lblPath = named<QLabel>("lblPath", this);
    QListWidget* const lstFiles = named<QListWidget>("lstFiles", this);
    QPushButton* const btnOk = named<QPushButton>("btnOk", this);
    QPushButton* const btnCancel = named<QPushButton>("btnCancel", this);
    QPushButton* const btnHelp = named<QPushButton>("btnHelp", this);
};

} // namespace quillmere
