// Held by the tests of the forms, in tests/editor/dialogs.

#include "editor/dialogs/element_form.h"

#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/platform/word_ids.h"
#include "forms/text.h"

#include <QTextCursor>

namespace quillmere {

ElementForm::ElementForm(
    Session& session, DesignSurface& surface, const QString& name, QWidget* parent)
    : Form(session, name, parent)
    , surface_(surface)
{
    btnCancel->setText("&Abbrechen");
    btnHelp->setText("&Hilfe");
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnHelp, &QPushButton::clicked, this, [this] { emit helpWanted(objectName()); });
}

std::size_t ElementForm::area() const
{
    return static_cast<std::size_t>(session().document.currentArea);
}

std::string ElementForm::designText() const
{
    return ReadDesignText(session().document, area());
}

OutputRules ElementForm::rules() const
{
    return OutputRules(losesNothing(session().document));
}

int ElementForm::searchPosition(const Hit& hit)
{
    return hit.position > 1 ? hit.position - 1 : hit.position;
}

QString ElementForm::word(int id) const
{
    return shownText(session().words.GetWord(id));
}

QString ElementForm::formText(std::int16_t variant, const char* otherwise) const
{
    const auto* entry = findForm(session().forms.table(), coreText(objectName()), variant);
    const bool hasText = entry != nullptr && !entry->Caption.empty();
    return hasText ? shownText(entry->Caption) : QString::fromUtf8(otherwise);
}

bool ElementForm::confirms(int id) const
{
    return session().messages.ask(id, {}, MessageIcon::Critical);
}

void ElementForm::complain(int id, QWidget& control, const std::string& gap) const
{
    const std::size_t gaps = gap.empty() ? 0 : 1;
    session().messages.show(id, {&gap, gaps}, MessageIcon::Warning);
    control.setFocus();
}

void ElementForm::write(const std::string& text)
{
    WriteDesignText(session().document, area(), text);
    session().window->setDocChanged(true);
    session().window->RefreshSurface();
}

void ElementForm::apply(const ElementEdit& edit)
{
    const auto caret = static_cast<std::size_t>(edit.position);
    apply(edit.text, {caret, caret});
}

void ElementForm::applyToFound(const ElementEdit& edit, bool isThere)
{
    if (isThere) return apply(edit);
    session().messages.show(word::kElementGone, {}, MessageIcon::Warning);
    reject();
}

void ElementForm::applyDeletion(const ElementEdit& edit)
{
    applyToFound(edit, edit.text != designText());
}

void ElementForm::apply(const std::string& text, SourceRange marked)
{
    write(text);
    surface_.setCaretOffset(marked.begin);
    if (!marked.empty()) {
        const int anchor = surface_.textCursor().position();
        surface_.setCaretOffset(marked.end);
        auto cursor = surface_.textCursor();
        const int end = cursor.position();
        cursor.setPosition(anchor);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        surface_.setTextCursor(cursor);
    }
    PushUndo(session().document, -1, surface_.DocumentHTML());
    if (session().afterStore) session().afterStore(true);
    accept();
}

QHBoxLayout* ElementForm::buttonRow(QPushButton* accept, QPushButton* remove)
{
    auto* row = new QHBoxLayout;
    if (remove != nullptr) row->addWidget(remove);
    row->addWidget(btnHelp);
    row->addStretch();
    row->addWidget(btnCancel);
    row->addWidget(accept);
    // A click on a button leaves the focus in a field, so that the field is not left by it.
    for (auto* button : {remove, btnHelp, btnCancel, accept}) {
        if (button == nullptr) continue;
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::TabFocus);
    }
    accept->setDefault(true);
    return row;
}

} // namespace quillmere
