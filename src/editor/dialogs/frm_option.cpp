// Held by tests/editor/dialogs/authoring_session_test.cpp.

#include "editor/dialogs/frm_option.h"

#include "document/platform/word_ids.h"
#include "editor/elements/option_edit.h"
#include "editor/elements/typed_values.h"

namespace quillmere {

frmOption::frmOption(Session& session, DesignSurface& surface, QWidget* parent)
    : TargetForm(session, surface, "frmOption", parent)
{
    setWindowTitle("Optionsfeld");
    onClick(btnNew, &frmOption::btnNew_Click);
    onClick(btnDelete, &frmOption::btnDelete_Click);
}

void frmOption::SetInitializations(bool newElement, const Hit& hit)
{
    begin(newElement, hit, {"Optionsfeld einfügen", "Optionsfeld bearbeiten"});
    mOptionFound = hit.Inside;
    mOptionPos = searchPosition(hit);
    txtCaption->setText(word(word::kOptionText) + QString::number(area() + 1));
    const auto option = NewElement ? std::nullopt : GetOption(designText(), mOptionPos);
    if (option) showElement(option->caption, option->target);
    txtCaption->selectAll();
}

void frmOption::btnNew_Click()
{
    const OptionSettings wanted{
        captionMarkup(txtCaption->text().toStdU16String()), objFrmLink->target()};
    const auto text = designText();
    if (NewElement) {
        const auto caret = surface().selection().marked.end;
        const int place
            = mOptionFound ? newOptionPosition(text, mOptionPos, caret, rules()) : mOptionPos;
        return apply(SetOption(text, place, mOptionFound, wanted, rules()));
    }
    applyToFound(
        ReplaceOption(text, mOptionPos, wanted, rules()), GetOption(text, mOptionPos).has_value());
}

void frmOption::btnDelete_Click()
{
    if (confirms(word::kDeleteOption))
        applyDeletion(DeleteOption(designText(), mOptionPos, false, rules()));
}

} // namespace quillmere
