#pragma once

#include "editor/window/source_colours.h"
#include "editor/window/source_search.h"
#include "forms/named.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include <utility>

namespace quillmere {

/// What the bar says of the hits, with "%1" for a number; of `hitOf` "%1" is the hit that is
/// marked.
struct SearchTexts {
    QString noHit = QStringLiteral("Kein Treffer");
    QString oneHit = QStringLiteral("1 Treffer");
    QString hits = QStringLiteral("%1 Treffer");
    QString hitOf = QStringLiteral("%1 von %2");
    QString replaced = QStringLiteral("%1 ersetzt");
};

/// The bar for searching and replacing in the source view. It knows what is wanted, not the text.
class SourceSearchBar : public QWidget {
    Q_OBJECT

public:
    explicit SourceSearchBar(QWidget* parent);

    void setTexts(SearchTexts texts) { texts_ = std::move(texts); }
    [[nodiscard]] SourceQuery query() const;
    [[nodiscard]] QString replacement() const { return txtReplace->text(); }

    /// Takes the colours of the view, but the program's own font.
    void takeLook(const SourceColours& colours);
    /// Shows the bar with its line for the search in focus; `proposed` is put there unless empty.
    void open(const QString& proposed, bool withReplace);
    /// Tells how many hits there are and which of them is marked (from 0; -1: none).
    void showHits(std::size_t count, int marked);
    void showReplaced(std::size_t count);

signals:
    void queryChanged();
    void wanted(bool forward); ///< the next hit, or the one before
    void replaceWanted();
    void replaceAllWanted();
    void closed(); ///< the person is done

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void wire();
    void tell(const QString& text, bool isFailure);

    QLabel* const lblFind = named<QLabel>("lblFind", this);
    QLineEdit* const txtFind = named<QLineEdit>("txtFind", this);
    QLabel* const lblHits = named<QLabel>("lblHits", this);
    QToolButton* const btnFindPrev = named<QToolButton>("btnFindPrev", this);
    QToolButton* const btnFindNext = named<QToolButton>("btnFindNext", this);
    QCheckBox* const chkMatchCase = named<QCheckBox>("chkMatchCase", this);
    QCheckBox* const chkWholeWords = named<QCheckBox>("chkWholeWords", this);
    QToolButton* const btnCloseSearch = named<QToolButton>("btnCloseSearch", this);
    QLabel* const lblReplace = named<QLabel>("lblReplace", this);
    QLineEdit* const txtReplace = named<QLineEdit>("txtReplace", this);
    QPushButton* const btnReplace = named<QPushButton>("btnReplace", this);
    QPushButton* const btnReplaceAll = named<QPushButton>("btnReplaceAll", this);

    SearchTexts texts_;
};

} // namespace quillmere
