// Held by tests/project_dialogs/deck_forms_test.cpp.

#include "project/frm_deck_open.h"

#include "document/last_path.h"
#include "document/platform/word_ids.h"
#include "forms/list_icons.h"
#include "forms/text.h"
#include "project/deck_dialogs.h"
#include "project/deck_files.h"
#include "project/deck_names.h"
#include "project/form_rows.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <array>

namespace quillmere {
namespace {

enum Page { New, Open, SaveAs }; // in the order of the tabs

constexpr std::string_view kUp = "..";

/// The directory above, or the same for a root.
std::string above(const std::string& directory)
{
    const auto slash = directory.rfind('/', directory.size() - 2);
    return slash == std::string::npos ? directory : directory.substr(0, slash + 1);
}

} // namespace

frmDeckOpen::frmDeckOpen(Session& session, QWidget* parent)
    : Form(session, "frmDeckOpen", parent)
{
    setTexts();
    layOut();
    for (const auto& root : session.drives.roots())
        objDrive->addItem(shownPath(root));
    if (isDeckOpen(session))
        txtSaveAsFileName->setText(shownPath(session.document.deck.front().deckFile));
    goTo(NormalisePath(corePath(lastDeckFolder(session))));
    wire();
    validate();
}

void frmDeckOpen::setTexts()
{
    setWindowTitle(QStringLiteral("Dokument"));
    lblFileName->setText(QStringLiteral("Datei&name:"));
    btnSave->setText(QStringLiteral("&Anlegen"));
    lblOpen->setText(QStringLiteral("Wählen Sie unten das Dokument aus."));
    btnOpen->setText(QStringLiteral("Ö&ffnen"));
    lblSaveAsFileName->setText(QStringLiteral("Datei&name:"));
    btnSaveCurProjectAs->setText(QStringLiteral("&Speichern"));
    objDrive->setAccessibleName(QStringLiteral("Laufwerk"));
    objDirectory->setAccessibleName(QStringLiteral("Verzeichnisse"));
    objFileList->setAccessibleName(QStringLiteral("Dokumente"));
    btnCancel->setText(QStringLiteral("Abbrechen"));
    btnHelp->setText(QStringLiteral("&Hilfe"));
}

QWidget* frmDeckOpen::page(QLabel* label, QLineEdit* field, QPushButton* button)
{
    auto* page = new QWidget(tabPages);
    auto* row = new QHBoxLayout(page);
    row->addWidget(label);
    if (field != nullptr) {
        label->setBuddy(field);
        row->addWidget(field);
    } else {
        row->addStretch();
    }
    row->addWidget(button);
    button->setAutoDefault(false);
    return page;
}

void frmDeckOpen::layOut()
{
    tabPages->addTab(page(lblFileName, txtFileName, btnSave), QStringLiteral("Neue Seite"));
    tabPages->addTab(page(lblOpen, nullptr, btnOpen), QStringLiteral("Öffnen"));
    tabPages->addTab(page(lblSaveAsFileName, txtSaveAsFileName, btnSaveCurProjectAs),
        QStringLiteral("Speichern unter"));
    lblDirectory->setTextFormat(Qt::PlainText);
    lblDirectory->setWordWrap(true);
    auto* places = new QGridLayout;
    places->addWidget(objDrive, 0, 0);
    places->addWidget(lblDirectory, 0, 1);
    places->addWidget(objDirectory, 1, 0);
    places->addWidget(objFileList, 1, 1);
    places->setColumnStretch(1, 1);
    objFileList->setMinimumSize(260, 200);
    for (auto* list : {objDirectory, objFileList})
        list->setSpacing(kEntrySpacingPx);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(tabPages);
    rows->addLayout(places, 1);
    rows->addLayout(buttonRow({btnHelp}, {btnCancel}));
}

void frmDeckOpen::wireButton(QPushButton* button, void (frmDeckOpen::*action)())
{
    connect(button, &QPushButton::clicked, this,
        [this, action] { trap([this, action] { (this->*action)(); }); });
}

void frmDeckOpen::wire()
{
    wireButton(btnSave, &frmDeckOpen::CreateNewPage);
    wireButton(btnOpen, &frmDeckOpen::OpenDocument);
    wireButton(btnSaveCurProjectAs, &frmDeckOpen::SaveProjectAs);
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnHelp, &QPushButton::clicked, this, [this] { emit helpWanted(objectName()); });
    connect(tabPages, &QTabWidget::currentChanged, this, &frmDeckOpen::arm);
    connect(objDrive, &QComboBox::textActivated, this,
        [this](const QString& root) { goTo(corePath(root)); });
    connect(objDirectory, &QListWidget::itemActivated, this,
        [this](QListWidgetItem* item) { enter(*item); });
    connect(objFileList, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item != nullptr) takeFile(*item);
        validate();
    });
    connect(objFileList, &QListWidget::itemActivated, this, [this] {
        if (tabPages->currentIndex() == Page::Open) btnOpen->click();
    });
    connect(txtFileName, &QLineEdit::textChanged, this, &frmDeckOpen::validate);
    connect(txtSaveAsFileName, &QLineEdit::textChanged, this, &frmDeckOpen::validate);
}

void frmDeckOpen::ShowTab(const QString& name)
{
    const auto shown = name == QStringLiteral("new") ? Page::New
        : name == QStringLiteral("open")             ? Page::Open
                                                     : Page::SaveAs;
    tabPages->setCurrentIndex(shown);
    arm(shown);
}

/// The button of the page answers Return, and its field has the focus.
void frmDeckOpen::arm(int page)
{
    const std::array buttons{btnSave, btnOpen, btnSaveCurProjectAs};
    const std::array<QWidget*, 3> fields{txtFileName, objFileList, txtSaveAsFileName};
    const auto index = static_cast<std::size_t>(page);
    buttons.at(index)->setDefault(true);
    fields.at(index)->setFocus();
}

void frmDeckOpen::validate()
{
    btnSave->setEnabled(!txtFileName->text().trimmed().isEmpty());
    btnOpen->setEnabled(objFileList->currentItem() != nullptr);
    btnSaveCurProjectAs->setEnabled(
        isDeckOpen(session()) && !txtSaveAsFileName->text().trimmed().isEmpty());
}

/// The directory lies on the drive with the longest root that it begins with.
void frmDeckOpen::showDrive()
{
    int shown = -1;
    std::size_t longest = 0;
    for (int i = 0; i < objDrive->count(); ++i) {
        const auto root = corePath(objDrive->itemText(i));
        if (root.size() <= longest || !directory_.starts_with(root)) continue;
        shown = i;
        longest = root.size();
    }
    objDrive->setCurrentIndex(shown);
}

void frmDeckOpen::goTo(const std::string& directory)
{
    directory_ = directory;
    showDrive();
    lblDirectory->setText(shownPath(directory));
    objDirectory->clear();
    const auto folder = listIcon(ListIcon::Folder, *this),
               deck = listIcon(ListIcon::Document, *this);
    if (above(directory) != directory) new QListWidgetItem(folder, shownText(kUp), objDirectory);
    for (const auto& name : session().files.directoriesIn(directory))
        new QListWidgetItem(folder, shownPath(name), objDirectory);
    objFileList->clear();
    for (const auto& name : deckFilesIn(directory))
        new QListWidgetItem(deck, shownPath(name), objFileList);
    objFileList->setCurrentItem(nullptr);
}

void frmDeckOpen::enter(const QListWidgetItem& folder)
{
    const auto name = corePath(folder.text());
    goTo(name == kUp ? above(directory_) : directory_ + name + "/");
}

void frmDeckOpen::takeFile(const QListWidgetItem& file)
{
    txtFileName->setText(file.text());
    txtSaveAsFileName->setText(file.text());
}

void frmDeckOpen::finish(bool isDone)
{
    if (!isDone) return;
    SetLastPath(directory_, kLastDeckPath, session().settings);
    accept();
}

void frmDeckOpen::CreateNewPage()
{
    const auto name = acceptedDeckName(corePath(txtFileName->text()));
    if (!name) return session().messages.show(word::kBadDeckName, {}, MessageIcon::Warning);
    finish(quillmere::CreateNewPage(session(), *name, directory_));
}

void frmDeckOpen::OpenDocument()
{
    const auto* const file = objFileList->currentItem();
    if (file == nullptr) return;
    finish(quillmere::OpenDocument(session(), corePath(file->text()), directory_));
}

void frmDeckOpen::SaveProjectAs()
{
    finish(quillmere::SaveProjectAs(
        session(), corePath(txtSaveAsFileName->text().trimmed()), directory_));
}

} // namespace quillmere
