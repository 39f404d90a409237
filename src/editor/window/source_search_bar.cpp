// Held by source_search_test.cpp.

#include "editor/window/source_search_bar.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace quillmere {
namespace {

constexpr int kFieldWidthPx = 160;
constexpr int kHitsWidthPx = 80;
constexpr int kFontPx = 13;

} // namespace

SourceSearchBar::SourceSearchBar(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("objSourceSearch"));
    setAutoFillBackground(true);
    lblFind->setText(QStringLiteral("&Suchen:"));
    lblFind->setBuddy(txtFind);
    btnFindPrev->setArrowType(Qt::UpArrow);
    btnFindPrev->setToolTip(QStringLiteral("Vorheriger Treffer (Umschalt+F3)"));
    btnFindPrev->setAccessibleName(QStringLiteral("Vorheriger Treffer"));
    btnFindNext->setArrowType(Qt::DownArrow);
    btnFindNext->setToolTip(QStringLiteral("Nächster Treffer (F3)"));
    btnFindNext->setAccessibleName(QStringLiteral("Nächster Treffer"));
    chkMatchCase->setText(QStringLiteral("&Groß-/Kleinschreibung"));
    chkWholeWords->setText(QStringLiteral("Ganze &Wörter"));
    btnCloseSearch->setText(QStringLiteral("✕"));
    btnCloseSearch->setToolTip(QStringLiteral("Suche schließen (Esc)"));
    btnCloseSearch->setAccessibleName(QStringLiteral("Suche schließen"));
    lblReplace->setText(QStringLiteral("&Ersetzen durch:"));
    lblReplace->setBuddy(txtReplace);
    btnReplace->setText(QStringLiteral("E&rsetzen"));
    btnReplaceAll->setText(QStringLiteral("&Alle ersetzen"));
    layOut();
    wire();
    hide();
}

void SourceSearchBar::layOut()
{
    txtFind->setMinimumWidth(kFieldWidthPx);
    lblHits->setMinimumWidth(kHitsWidthPx);
    auto* tools = new QHBoxLayout;
    for (QWidget* tool : std::initializer_list<QWidget*>{
             btnFindPrev, btnFindNext, lblHits, chkMatchCase, chkWholeWords})
        tools->addWidget(tool);
    tools->addStretch();
    tools->addWidget(btnCloseSearch);
    auto* replaceTools = new QHBoxLayout;
    replaceTools->addWidget(btnReplace);
    replaceTools->addWidget(btnReplaceAll);
    replaceTools->addStretch();
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(8, 6, 8, 6);
    rows->setSpacing(6);
    rows->addWidget(lblFind, 0, 0);
    rows->addWidget(txtFind, 0, 1);
    rows->addLayout(tools, 0, 2);
    rows->addWidget(lblReplace, 1, 0);
    rows->addWidget(txtReplace, 1, 1);
    rows->addLayout(replaceTools, 1, 2);
    rows->setColumnStretch(1, 1);
    QWidget* ahead = txtFind; // the fields first, then what is done with them
    for (QWidget* next : std::initializer_list<QWidget*>{txtReplace, btnFindPrev, btnFindNext,
             chkMatchCase, chkWholeWords, btnReplace, btnReplaceAll, btnCloseSearch}) {
        setTabOrder(ahead, next);
        ahead = next;
    }
}

void SourceSearchBar::wire()
{
    connect(txtFind, &QLineEdit::textChanged, this, &SourceSearchBar::queryChanged);
    connect(chkMatchCase, &QCheckBox::toggled, this, &SourceSearchBar::queryChanged);
    connect(chkWholeWords, &QCheckBox::toggled, this, &SourceSearchBar::queryChanged);
    connect(txtFind, &QLineEdit::returnPressed, this, [this] { emit wanted(true); });
    connect(btnFindNext, &QToolButton::clicked, this, [this] { emit wanted(true); });
    connect(btnFindPrev, &QToolButton::clicked, this, [this] { emit wanted(false); });
    connect(txtReplace, &QLineEdit::returnPressed, this, &SourceSearchBar::replaceWanted);
    connect(btnReplace, &QPushButton::clicked, this, &SourceSearchBar::replaceWanted);
    connect(btnReplaceAll, &QPushButton::clicked, this, &SourceSearchBar::replaceAllWanted);
    connect(btnCloseSearch, &QToolButton::clicked, this, &SourceSearchBar::closed);
}

void SourceSearchBar::takeLook(const SourceColours& colours)
{
    auto look = palette();
    look.setColor(QPalette::Window, colours.lineGround);
    look.setColor(QPalette::Button, colours.lineGround);
    look.setColor(QPalette::Base, colours.ground);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        look.setColor(QPalette::Active, role, colours.ink);
    look.setColor(QPalette::BrightText, colours.error);
    setPalette(look);
    auto plain = font();
    plain.setFamily(QApplication::font().family());
    plain.setPixelSize(kFontPx);
    setFont(plain);
}

SourceQuery SourceSearchBar::query() const
{
    return {txtFind->text(), chkMatchCase->isChecked(), chkWholeWords->isChecked()};
}

void SourceSearchBar::open(const QString& proposed, bool withReplace)
{
    for (QWidget* control :
        std::initializer_list<QWidget*>{lblReplace, txtReplace, btnReplace, btnReplaceAll})
        control->setVisible(withReplace);
    show();
    if (!proposed.isEmpty()) txtFind->setText(proposed);
    txtFind->selectAll();
    txtFind->setFocus(Qt::ShortcutFocusReason);
}

void SourceSearchBar::tell(const QString& text, bool isFailure)
{
    lblHits->setText(text);
    lblHits->setForegroundRole(isFailure ? QPalette::BrightText : QPalette::WindowText);
}

void SourceSearchBar::showHits(std::size_t count, int marked)
{
    const bool hasQuery = !txtFind->text().isEmpty();
    for (QWidget* control :
        std::initializer_list<QWidget*>{btnFindPrev, btnFindNext, btnReplace, btnReplaceAll})
        control->setEnabled(count > 0);
    if (!hasQuery) return tell({}, false);
    if (count == 0) return tell(texts_.noHit, true);
    if (marked >= 0) return tell(texts_.hitOf.arg(marked + 1).arg(count), false);
    tell(count == 1 ? texts_.oneHit : texts_.hits.arg(count), false);
}

void SourceSearchBar::showReplaced(std::size_t count)
{
    tell(texts_.replaced.arg(count), false);
}

void SourceSearchBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) emit closed();
    event->accept(); // what the fields have no use for is not typed into the source
}

} // namespace quillmere
