#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QLabel>
#include <QPushButton>

namespace quillmere {

/// What the program is, its version, and whose work it stands on.
class frmAboutQuillmere : public Form {
    Q_OBJECT

public:
    explicit frmAboutQuillmere(Session& session, QWidget* parent = nullptr);

private:
    void layOut();

    QLabel* const picLogo = named<QLabel>("picLogo", this);
    QLabel* const lblName = named<QLabel>("lblName", this);
    QLabel* const lblVersion = named<QLabel>("lblVersion", this);
    QLabel* const lblDescription = named<QLabel>("lblDescription", this);
    QLabel* const lblLicences = named<QLabel>("lblLicences", this);
    QPushButton* const btnOk = named<QPushButton>("btnOk", this);
};

} // namespace quillmere
