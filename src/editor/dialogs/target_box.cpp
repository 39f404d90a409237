// Held by tests/editor/dialogs/frm_option_test.cpp.

#include "editor/dialogs/target_box.h"

#include "document/card_attributes.h"
#include "document/complete_url.h"
#include "document/platform/word_ids.h"
#include "editor/elements/typed_values.h"
#include "forms/text.h"
#include "forms/trap.h"

#include <QDir>
#include <QGridLayout>

namespace quillmere {

TargetBox::TargetBox(Session& session, QWidget* parent)
    : QGroupBox(QStringLiteral("Link anlegen"), parent)
    , session_(session)
{
    setObjectName("objFrmLink");
    optShowAreaOrder[0]->setText("zu einem &Bereich dieses Dokuments:");
    optShowAreaOrder[1]->setText("zu einer &URL oder Datei:");
    btnSearchUrl->setText("&Durchsuchen ...");
    for (int i = 0; i < 2; ++i)
        optShowAreaOrder.at(static_cast<std::size_t>(i))->setProperty("arrayIndex", i);
    cboLink->setAccessibleName("Bereich");
    txtUrlJump->setAccessibleName("URL oder Datei");
    btnSearchUrl->setAutoDefault(false);
    layOut();
    wire();
}

void TargetBox::layOut()
{
    auto* grid = new QGridLayout(this);
    grid->addWidget(optShowAreaOrder[0], 0, 0, 1, 3, Qt::AlignLeft);
    grid->addWidget(cboLink, 1, 1, 1, 2);
    grid->addWidget(optShowAreaOrder[1], 2, 0, 1, 3, Qt::AlignLeft);
    grid->addWidget(txtUrlJump, 3, 1);
    grid->addWidget(btnSearchUrl, 3, 2);
    grid->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * 3);
    grid->setColumnStretch(1, 1);
}

void TargetBox::wire()
{
    connect(
        cboLink, &QComboBox::activated, this, [this] { optShowAreaOrder[0]->setChecked(true); });
    connect(txtUrlJump, &QLineEdit::textEdited, this,
        [this] { optShowAreaOrder[1]->setChecked(true); });
    connect(btnSearchUrl, &QPushButton::clicked, this,
        [this] { trapped(session_.messages, [this] { btnSearchUrl_Click(); }); });
}

void TargetBox::fillAreas(const QString& areaText)
{
    cboLink->clear();
    for (std::size_t i = 0; i < areaCount(session_.document.deck); ++i) {
        const auto card = GetCardAttributes(session_.document, i);
        cboLink->addItem(
            areaText + ' ' + QString::number(i + 1), QByteArray::fromStdString(card.id));
        cboLink->setItemData(static_cast<int>(i),
            QString::fromStdU16String(typedFrom(card.id + ": " + card.title)), Qt::ToolTipRole);
    }
}

void TargetBox::setDefaults()
{
    txtUrlJump->clear();
    optShowAreaOrder[0]->setChecked(true);
    const bool isFirst = session_.document.currentArea == 0;
    cboLink->setCurrentIndex(isFirst && cboLink->count() > 1 ? 1 : 0);
}

void TargetBox::setTarget(const std::string& target)
{
    const int index = target.starts_with('#')
        ? cboLink->findData(QByteArray::fromStdString(target.substr(1)))
        : -1;
    optShowAreaOrder.at(index < 0 ? 1 : 0)->setChecked(true);
    if (index < 0)
        txtUrlJump->setText(QString::fromStdU16String(typedFrom(target)));
    else
        cboLink->setCurrentIndex(index);
}

std::string TargetBox::target()
{
    if (optShowAreaOrder[0]->isChecked() && cboLink->currentIndex() >= 0)
        return "#" + cboLink->currentData().toByteArray().toStdString();
    return completed(txtUrlJump->text().trimmed());
}

std::string TargetBox::completed(const QString& typed)
{
    auto asTyped = valueMarkup(typed.toStdU16String());
    if (typed.isEmpty() || typed.startsWith('#')) return asTyped;
    const auto& deckDir = session_.document.deck.front().deckDir;
    if (session_.files.fileExists(deckDir + corePath(typed))) return asTyped;
    const auto core = coreText(typed);
    const auto whole = CompleteUrl(core, session_.messages);
    if (whole == core) return asTyped;
    txtUrlJump->setText(shownText(whole));
    return valueMarkup(shownText(whole).toStdU16String());
}

void TargetBox::btnSearchUrl_Click()
{
    FileQuestion question;
    question.title = shownText(session_.words.GetWord(word::kChooseTargetTitle));
    question.directory = shownPath(session_.document.deck.front().deckDir);
    question.filter = shownText(session_.words.GetWord(word::kWmlFilter)) + "(*.wml)";
    const auto path = session_.fileDialogs.openFile(question);
    if (!path) return;
    txtUrlJump->setText(QDir(question.directory).relativeFilePath(*path));
    optShowAreaOrder[1]->setChecked(true);
    txtUrlJump->setFocus();
}

} // namespace quillmere
