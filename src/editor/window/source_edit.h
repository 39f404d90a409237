#pragma once

#include "editor/window/source_colours.h"
#include "editor/window/source_search.h"

#include <QPlainTextEdit>

#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

class SourceHighlighter;
class SourceSearchBar;
struct SearchTexts;

/// The WML source of a deck as text to edit: with line numbers, colours, the pair of the tag at the
/// caret, and a bar to search and replace (Ctrl+F, Ctrl+H, F3, Shift+F3, Escape). The colours
/// follow the palette, Base and Text.
class SourceEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit SourceEdit(QWidget* parent = nullptr);

    /// Shows a text of the core; the caret goes to its begin and nothing can be undone.
    void setWml(std::string_view text);
    /// The text for the core, its lines ended by CR LF, but for the last. What Windows-1252 has not
    /// becomes character references; a hard blank stays one.
    [[nodiscard]] std::string wml() const;
    /// The text as it stands, hard blanks included, its lines ended by LF.
    [[nodiscard]] QString source() const;

    [[nodiscard]] const SourceColours& colours() const { return colours_; }
    [[nodiscard]] int numberWidth() const;
    void paintNumbers(QPaintEvent* event);

    void setSearchTexts(SearchTexts texts);
    void openSearch(bool withReplace);
    void closeSearch();
    [[nodiscard]] bool isSearching() const;
    /// Goes to a hit of the last search, around the ends of the text; opens the bar where there was
    /// none.
    void findNext(bool forward);

signals:
    /// A blank or a new line is about to be typed, or hits are about to be replaced: a state to
    /// come back to, as the text now stands.
    void aboutToBreak();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void wire();
    void takeColours();
    void layOut(); ///< numbers and bar round the text
    template <class Action> void addKey(const QString& keys, const Action& action);

    void search(); ///< finds the hits anew
    void showHits();
    void selectHit(std::size_t index);
    void replaceHit();
    void replaceAll();
    [[nodiscard]] int markedHit() const; ///< the index of the hit that is selected; -1: none
    void replaceWhole(const QString& text);

    void mark(); ///< the line of the caret, the pair of tags and the hits in view
    void markRange(QList<QTextEdit::ExtraSelection>& marks, int begin, int end) const;
    void markPair(QList<QTextEdit::ExtraSelection>& marks) const;
    void markHits(QList<QTextEdit::ExtraSelection>& marks) const;

    SourceColours colours_;
    SourceHighlighter* const highlighter_;
    QWidget* const numbers_;
    SourceSearchBar* const bar_;
    std::vector<int> hits_;
    int hitLength_ = 0;
};

} // namespace quillmere
