// Held by tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/target_box.h"

#include "document/card_attributes.h"
#include "document/complete_url.h"
#include "document/deck_store.h"
#include "document/platform/word_ids.h"
#include "editor/elements/typed_values.h"
#include "forms/text.h"
#include "forms/trap.h"

#include <QAbstractItemView>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyledItemDelegate>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kTitleRole = Qt::UserRole + 1;
constexpr int kListMarginPx = 16;
constexpr int kWidestListPx = 480;

/// Shows the title of each area behind its number while the list is open.
class AreaDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text += "   " + index.data(kTitleRole).toString();
    }
};

} // namespace

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
    auto* area = new QHBoxLayout;
    area->addWidget(cboLink);
    area->addWidget(title_, 1);
    grid->addLayout(area, 1, 1, 1, 2);
    grid->addWidget(optShowAreaOrder[1], 2, 0, 1, 3, Qt::AlignLeft);
    grid->addWidget(txtUrlJump, 3, 1);
    grid->addWidget(btnSearchUrl, 3, 2);
    grid->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * 3);
    grid->setColumnStretch(1, 1);
    title_->setTextFormat(Qt::PlainText);
    title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long one is cut
    cboLink->setItemDelegate(new AreaDelegate(cboLink));
    setTabOrder(optShowAreaOrder[0], cboLink);
    setTabOrder(cboLink, optShowAreaOrder[1]);
}

void TargetBox::wire()
{
    connect(cboLink, &QComboBox::currentIndexChanged, this, &TargetBox::showTitle);
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
    const auto metrics = cboLink->fontMetrics();
    int widest = 0;
    for (std::size_t i = 0; i < areaCount(session_.document.deck); ++i) {
        const auto card = GetCardAttributes(session_.document, i);
        cboLink->addItem(
            areaText + ' ' + QString::number(i + 1), QByteArray::fromStdString(card.id));
        const auto title = QString::fromStdU16String(typedFrom(card.title));
        cboLink->setItemData(static_cast<int>(i), title, kTitleRole);
        widest = std::max(widest,
            metrics.horizontalAdvance(cboLink->itemText(static_cast<int>(i)) + "   " + title));
    }
    cboLink->view()->setMinimumWidth(std::min(widest + 2 * kListMarginPx, kWidestListPx));
    showTitle();
}

void TargetBox::showTitle()
{
    title_->setText(cboLink->currentData(kTitleRole).toString());
    title_->setToolTip(title_->text());
}

void TargetBox::setDefaults()
{
    txtUrlJump->clear();
    shownTarget_.clear();
    optShowAreaOrder[0]->setChecked(true);
    const bool isFirst = session_.document.currentArea == 0;
    cboLink->setCurrentIndex(isFirst && cboLink->count() > 1 ? 1 : 0);
}

void TargetBox::setTarget(const std::string& target)
{
    shownTarget_ = target;
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
    const bool isShown = typed.toStdU16String() == typedFrom(shownTarget_);
    if (isShown && losesNothing(session_.document)) return shownTarget_;
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
