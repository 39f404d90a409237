// Held by tests/project_dialogs/deck_forms_test.cpp.

#include "project/frm_open_from_projekt_dir.h"

#include "document/platform/word_ids.h"
#include "document/text/text_search.h"
#include "forms/list_icons.h"
#include "forms/text.h"
#include "project/deck_files.h"
#include "project/deck_names.h"
#include "project/form_rows.h"

#include <QVBoxLayout>

namespace quillmere {

frmOpenFromProjektDir::frmOpenFromProjektDir(Session& session, QWidget* parent)
    : Form(session, "frmOpenFromProjektDir", parent)
{
    setWindowTitle(QStringLiteral("Aktuelles Projektverzeichnis"));
    btnOk->setText(QStringLiteral("&Öffnen"));
    btnCancel->setText(QStringLiteral("&Abbrechen"));
    btnHelp->setText(QStringLiteral("&Hilfe"));
    layOut();
    fill();
    connect(lstFiles, &QListWidget::itemSelectionChanged, this,
        [this] { btnOk->setEnabled(!lstFiles->selectedItems().isEmpty()); });
    connect(lstFiles, &QListWidget::itemDoubleClicked, this,
        [this] { trap([this] { openSelected(); }); });
    connect(btnOk, &QPushButton::clicked, this, [this] { trap([this] { openSelected(); }); });
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnHelp, &QPushButton::clicked, this, [this] { emit helpWanted(objectName()); });
}

void frmOpenFromProjektDir::layOut()
{
    lblPath->setTextFormat(Qt::PlainText);
    lblPath->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblPath->setWordWrap(true);
    lstFiles->setMinimumSize(360, 220);
    lstFiles->setSpacing(kEntrySpacingPx);
    lstFiles->setAccessibleName(QStringLiteral("Dokumente im Projektverzeichnis"));
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(lblPath);
    rows->addWidget(lstFiles);
    rows->addLayout(buttonRow({btnHelp}, {btnCancel, btnOk}));
    btnOk->setDefault(true);
    btnOk->setEnabled(false);
    lstFiles->setFocus();
}

// Names are shown without their end; the file's whole name goes along, since it may be "INDEX.WML".
void frmOpenFromProjektDir::fill()
{
    if (!isDeckOpen(session())) return;
    const auto& deck = session().document.deck.front();
    lblPath->setText(shownPath(deck.deckDir));
    for (const auto& name : deckFilesIn(deck.deckDir)) {
        const auto file = shownPath(name);
        auto* item = new QListWidgetItem(
            listIcon(ListIcon::Document, *lstFiles), file.left(file.lastIndexOf(u'.')), lstFiles);
        item->setData(Qt::UserRole, file);
        if (name != deck.deckFile) continue;
        auto bold = item->font();
        bold.setBold(true);
        item->setFont(bold);
        item->setToolTip(shownText(session().words.GetWord(word::kIsOpenHint)));
        lstFiles->setCurrentItem(item, QItemSelectionModel::NoUpdate);
    }
}

void frmOpenFromProjektDir::openSelected()
{
    const auto selected = lstFiles->selectedItems();
    if (selected.isEmpty()) return;
    const auto name = corePath(selected.front()->data(Qt::UserRole).toString());
    if (OpenDocument(session(), name, session().document.deck.front().deckDir)) accept();
}

} // namespace quillmere
