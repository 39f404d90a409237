// Held by tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/frm_links.h"

#include "document/deck_store.h"
#include "document/platform/word_ids.h"
#include "editor/elements/typed_values.h"

#include <QTextCursor>

#include <algorithm>

namespace quillmere {

frmLinks::frmLinks(Session& session, DesignSurface& surface, QWidget* parent)
    : TargetForm(session, surface, "frmLinks", parent)
{
    setWindowTitle("Hyperlink");
    onClick(btnNew, &frmLinks::btnNew_Click);
    onClick(btnDelete, &frmLinks::btnDelete_Click);
}

void frmLinks::SetInitializations(bool newElement, const Hit& hit)
{
    begin(newElement, hit, {"Hyperlink einfügen", "Hyperlink bearbeiten"});
    mLinkPos = searchPosition(hit);
    const auto marked = surface().selectedText().simplified();
    txtCaption->setText(markedText().empty() || marked.isEmpty() ? word(word::kLinkText) : marked);
    const auto link = NewElement ? std::nullopt : GetLink(designText(), mLinkPos, rules());
    if (link) showElement(link->caption, link->target);
    txtCaption->selectAll();
}

/// What is marked of text; empty where an object is marked, or nothing.
SourceRange frmLinks::markedText() const
{
    const auto selection = surface().selection();
    const bool isText = surface().QueryStatus(surface_command::kItalic) != 1
        && !surface().selectedText().trimmed().isEmpty();
    return isText ? selection.marked : SourceRange{};
}

void frmLinks::btnNew_Click()
{
    LinkSettings wanted{captionMarkup(txtCaption->text().toStdU16String()), {}};
    if (txtCaption->text().trimmed().isEmpty())
        return complain(word::kLinkNeedsCaption, *txtCaption);
    wanted.target = objFrmLink->target();
    if (wanted.target.empty()) return complain(word::kTargetMissing, objFrmLink->address());
    const auto text = designText();
    if (!NewElement)
        return applyToFound(ReplaceLink(text, mLinkPos, wanted, rules()),
            GetLink(text, mLinkPos, rules()).has_value());
    if (markedText().empty()) return apply(SetLink(text, mLinkPos, wanted, rules()));
    linkMarkedText(wanted);
}

/// The blanks at the borders of what is marked stay in the sentence: the link takes the place of
/// the words alone; by the default of the blanks behind them as well, for it brings one.
void frmLinks::markWithoutBlanks()
{
    const auto marked = surface().selectedText();
    const auto isText = [](QChar character) { return !character.isSpace(); };
    const auto ahead = std::find_if(marked.begin(), marked.end(), isText) - marked.begin();
    const auto behind = rules().losesNothing()
        ? std::find_if(marked.rbegin(), marked.rend(), isText) - marked.rbegin()
        : 0;
    auto cursor = surface().textCursor();
    const auto end = cursor.selectionEnd() - static_cast<int>(behind);
    cursor.setPosition(cursor.selectionStart() + static_cast<int>(ahead));
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    surface().setTextCursor(cursor);
}

void frmLinks::linkMarkedText(const LinkSettings& wanted)
{
    if (!canBecomeLink(designText(), markedText(), rules()))
        return complain(word::kCannotBecomeLink, *txtCaption);
    markWithoutBlanks();
    surface().pasteHTML(linkInPlace(designText(), markedText(), wanted, rules()));
    const auto caret = surface().caretOffset();
    SaveSurface(session().document, area());
    apply(surface().DocumentHTML(), {caret, caret});
}

void frmLinks::btnDelete_Click()
{
    if (confirms(word::kDeleteLink)) applyDeletion(DeleteLink(designText(), mLinkPos, rules()));
}

} // namespace quillmere
