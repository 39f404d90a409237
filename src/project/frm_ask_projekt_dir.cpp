// Held by tests/project_dialogs/deck_forms_test.cpp.

#include "project/frm_ask_projekt_dir.h"

#include "document/last_path.h"
#include "document/platform/path_checks.h"
#include "document/platform/word_ids.h"
#include "forms/text.h"
#include "project/deck_dialogs.h"
#include "project/deck_files.h"
#include "project/deck_names.h"
#include "project/form_rows.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace quillmere {
namespace {

constexpr int kFieldWidthPx = 420;

} // namespace

frmAskProjektDir::frmAskProjektDir(Session& session, QWidget* parent)
    : Form(session, "frmAskProjektDir", parent)
{
    setWindowTitle(QStringLiteral("Datei benennen"));
    lblPath->setText(QStringLiteral("&Projektverzeichnis:"));
    lblPath->setBuddy(txtPath);
    btnFolder->setText(QStringLiteral("&Durchsuchen …"));
    lblFileName->setText(QStringLiteral("Datei&name:"));
    lblFileName->setBuddy(txtFileName);
    btnOk->setText(QStringLiteral("&OK"));
    btnCancel->setText(QStringLiteral("&Abbrechen"));
    btnHelp->setText(QStringLiteral("&Hilfe"));
    layOut();
    propose();
    wire();
    validate();
}

void frmAskProjektDir::layOut()
{
    txtPath->setMinimumWidth(kFieldWidthPx);
    lblHint->setWordWrap(true);
    lblHint->setMinimumHeight(2 * lblHint->fontMetrics().lineSpacing()); // nothing moves
    lblHint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* fields = new QGridLayout;
    fields->addWidget(lblPath, 0, 0, 1, 2);
    fields->addWidget(txtPath, 1, 0);
    fields->addWidget(btnFolder, 1, 1);
    fields->addWidget(lblFileName, 2, 0, 1, 2);
    fields->addWidget(txtFileName, 3, 0);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(fields);
    rows->addWidget(lblHint);
    rows->addStretch();
    rows->addLayout(buttonRow({btnHelp}, {btnCancel, btnOk}));
    btnOk->setDefault(true);
    (txtFileName->text().isEmpty() ? txtFileName : txtPath)->setFocus();
}

void frmAskProjektDir::wire()
{
    connect(txtPath, &QLineEdit::textChanged, this, &frmAskProjektDir::validate);
    connect(txtFileName, &QLineEdit::textChanged, this, &frmAskProjektDir::validate);
    connect(btnFolder, &QPushButton::clicked, this, [this] { trap([this] { chooseFolder(); }); });
    connect(btnOk, &QPushButton::clicked, this, [this] { trap([this] { start(); }); });
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnHelp, &QPushButton::clicked, this, [this] { emit helpWanted(objectName()); });
}

void frmAskProjektDir::propose()
{
    const auto folder = lastDeckFolder(session());
    txtPath->setText(folder);
    if (!HasIndexPage(corePath(folder), session().document.deck, session().files))
        txtFileName->setText(shownText(kIndexPage));
}

void frmAskProjektDir::validate()
{
    const bool isPath = CheckPath(coreText(txtPath->text())).has_value();
    const bool isName = CheckFileName(coreText(txtFileName->text())).has_value();
    btnOk->setEnabled(isPath && isName);
    std::string hint;
    if (!isName && !txtFileName->text().isEmpty())
        hint = session().words.GetWord(word::kBadNameHint);
    if (!isPath && !txtPath->text().isEmpty()) hint = session().words.GetWord(word::kBadFolderHint);
    lblHint->setText(shownText(hint));
}

void frmAskProjektDir::chooseFolder()
{
    FileQuestion question;
    question.title = shownText(session().words.GetWord(word::kProjectFolderCaption));
    question.directory = txtPath->text();
    if (const auto folder = session().fileDialogs.chooseFolder(question)) txtPath->setText(*folder);
}

std::string frmAskProjektDir::directory() const
{
    return NormalisePath(corePath(txtPath->text().trimmed()));
}

/// Without a start page the project has no way in.
void frmAskProjektDir::offerStartPage(const std::string& directory)
{
    if (HasIndexPage(directory, session().document.deck, session().files)) return;
    const auto name = acceptedDeckName(corePath(txtFileName->text()));
    if (name == kIndexPage) return;
    if (session().messages.ask(word::kNameStartPage, {}, MessageIcon::Question))
        txtFileName->setText(shownText(kIndexPage));
}

void frmAskProjektDir::start()
{
    const auto folder = directory();
    if (!MakeDirectories(folder, true, session().messages)) return;
    SetLastPath(folder, kLastDeckPath, session().settings);
    offerStartPage(folder);
    if (CreateNewPage(session(), corePath(txtFileName->text().trimmed()), folder)) accept();
}

} // namespace quillmere
