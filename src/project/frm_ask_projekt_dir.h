#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <string>

namespace quillmere {

/// Asks for the directory and the name of a new deck, makes the directory where it is missing, and
/// starts the deck.
class frmAskProjektDir : public Form {
    Q_OBJECT

public:
    explicit frmAskProjektDir(Session& session, QWidget* parent = nullptr);

private:
    void layOut();
    void wire();
    void propose();
    void validate(); ///< the one place that enables btnOk
    void chooseFolder();
    void start();
    /// The path with its separator, in bytes of the file system.
    [[nodiscard]] std::string directory() const;
    void offerStartPage(const std::string& directory);

    QLabel* const lblPath = named<QLabel>("lblPath", this);
    QLineEdit* const txtPath = named<QLineEdit>("txtPath", this);
    QPushButton* const btnFolder = named<QPushButton>("btnFolder", this);
    QLabel* const lblFileName = named<QLabel>("lblFileName", this);
    QLineEdit* const txtFileName = named<QLineEdit>("txtFileName", this);
    QLabel* const lblHint = named<QLabel>("lblHint", this);
    QPushButton* const btnOk = named<QPushButton>("btnOk", this);
    QPushButton* const btnCancel = named<QPushButton>("btnCancel", this);
    QPushButton* const btnHelp = named<QPushButton>("btnHelp", this);
};

} // namespace quillmere
