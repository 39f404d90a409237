#pragma once

#include "editor/window/deck_costs.h"
#include "forms/form.h"
#include "forms/named.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStringList>

namespace quillmere {

/// How a deck is opened that saving would cost something.
enum class CostsAnswer {
    Keep, ///< all the same
    StandardOnce, ///< this deck with standard output
    StandardAlways,
};

/// Lists what a save would change in a deck that nobody changed there: what the default loses, or
/// what is mended with standard output.
class frmDeckChanges : public Form {
    Q_OBJECT

public:
    frmDeckChanges(Session& session, const DeckCosts& costs, QWidget* parent);
    frmDeckChanges(Session& session, const QStringList& mends, QWidget* parent);

    /// Show the form. Closing it is the first answer, or false: nothing is to be mended.
    [[nodiscard]] static CostsAnswer ask(Session& session, const DeckCosts& costs, QWidget* parent);
    [[nodiscard]] static bool mayMend(Session& session, const QStringList& mends, QWidget* parent);

private:
    frmDeckChanges(Session& session, QWidget* parent);
    void layOut(QLabel* heading, QLabel* note, std::initializer_list<QPushButton*> buttons);
    void addRow(const QString& text, bool isHeading);
    void answerBy(QPushButton* button, int result);

    QLabel* const lblLost = named<QLabel>("lblLost", this);
    QLabel* const lblLostNote = named<QLabel>("lblLostNote", this);
    QLabel* const lblMended = named<QLabel>("lblMended", this);
    QLabel* const lblMendedNote = named<QLabel>("lblMendedNote", this);
    QListWidget* const lstChanges = named<QListWidget>("lstChanges", this);
    QPushButton* const btnKeep = named<QPushButton>("btnKeep", this);
    QPushButton* const btnStandardOnce = named<QPushButton>("btnStandardOnce", this);
    QPushButton* const btnStandardAlways = named<QPushButton>("btnStandardAlways", this);
    QPushButton* const btnLeave = named<QPushButton>("btnLeave", this);
    QPushButton* const btnMend = named<QPushButton>("btnMend", this);
};

} // namespace quillmere
