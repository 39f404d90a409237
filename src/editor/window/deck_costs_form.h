#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace quillmere {

/// Lists what saving would cost a deck that was just opened, and offers the standard output, which
/// costs it nothing.
class DeckCostsForm : public Form {
    Q_OBJECT

public:
    DeckCostsForm(Session& session, const QStringList& costs, QWidget* parent);
    /// Shows the form; true where the person wants the standard output.
    [[nodiscard]] static bool offer(Session& session, const QStringList& costs, QWidget* parent);

private:
    QLabel* const lblDescription = named<QLabel>("lblDescription", this);
    QListWidget* const lstCosts = named<QListWidget>("lstCosts", this);
    QPushButton* const btnKeep = named<QPushButton>("btnKeep", this);
    QPushButton* const btnStandard = named<QPushButton>("btnStandard", this);
};

} // namespace quillmere
