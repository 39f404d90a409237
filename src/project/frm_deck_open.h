#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include <string>

namespace quillmere {

/// The decks of a directory in one form: a new one, one to open, and a new name for the open one,
/// each on a page of its own above the same directory.
class frmDeckOpen : public Form {
    Q_OBJECT

public:
    explicit frmDeckOpen(Session& session, QWidget* parent = nullptr);

    /// Shows the page "new" or "open", and for any other name that of saving under a name.
    void ShowTab(const QString& name);
    /// What the buttons of the pages do with the form's fields. A failure is thrown.
    void CreateNewPage();
    void OpenDocument();
    void SaveProjectAs();

private:
    void setTexts();
    void layOut();
    [[nodiscard]] QWidget* page(QLabel* label, QLineEdit* field, QPushButton* button);
    void wire();
    void wireButton(QPushButton* button, void (frmDeckOpen::*action)());
    void arm(int page);
    void validate(); ///< the one place that enables the buttons of the pages
    void goTo(const std::string& directory);
    void showDrive();
    void enter(const QListWidgetItem& folder);
    void takeFile(const QListWidgetItem& file);
    void finish(bool isDone);

    QTabWidget* const tabPages = named<QTabWidget>("tabPages", this);
    QLabel* const lblFileName = named<QLabel>("lblFileName", this);
    QLineEdit* const txtFileName = named<QLineEdit>("txtFileName", this);
    QPushButton* const btnSave = named<QPushButton>("btnSave", this);
    QLabel* const lblOpen = named<QLabel>("lblOpen", this);
    QPushButton* const btnOpen = named<QPushButton>("btnOpen", this);
    QLabel* const lblSaveAsFileName = named<QLabel>("lblSaveAsFileName", this);
    QLineEdit* const txtSaveAsFileName = named<QLineEdit>("txtSaveAsFileName", this);
    QPushButton* const btnSaveCurProjectAs = named<QPushButton>("btnSaveCurProjectAs", this);
    QComboBox* const objDrive = named<QComboBox>("objDrive", this);
    QLabel* const lblDirectory = named<QLabel>("lblDirectory", this);
    QListWidget* const objDirectory = named<QListWidget>("objDirectory", this);
    QListWidget* const objFileList = named<QListWidget>("objFileList", this);
    QPushButton* const btnCancel = named<QPushButton>("btnCancel", this);
    QPushButton* const btnHelp = named<QPushButton>("btnHelp", this);
    std::string directory_; // with its separator
};

} // namespace quillmere
