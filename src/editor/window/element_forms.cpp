// A new dialog is a row. Held by the tests in tests/editor/dialogs, which open them by the tools.

#include "editor/window/element_forms.h"

#include "editor/dialogs/frm_area.h"
#include "editor/dialogs/frm_image.h"
#include "editor/dialogs/frm_justify.h"
#include "editor/dialogs/frm_links.h"
#include "editor/dialogs/frm_option.h"
#include "editor/dialogs/frm_table.h"
#include "editor/dialogs/frm_text_format.h"

namespace quillmere {
namespace {

using Open = void (*)(frmPrepare& window, Session& session, const FormCall& call);

/// The form for an element that is new or was hit.
template <class Form> void openElement(frmPrepare& window, Session& session, const FormCall& call)
{
    Form form(session, window.surface(), &window);
    form.SetInitializations(call.NewElement, call.hit);
    form.showModally();
}

void openArea(frmPrepare& window, Session& session, const FormCall& call)
{
    frmArea form(session, window.surface(), &window);
    form.SetInitializations(call.NewElement);
    form.showModally();
}

void openTextFormat(frmPrepare& window, Session& session, const FormCall&)
{
    frmTextFormat form(session, window.surface(), &window);
    if (!form.CheckIfIsValidMarked()) return;
    form.SetInitializations();
    form.showModally();
}

void openJustify(frmPrepare& window, Session& session, const FormCall&)
{
    frmJustify form(session, window.surface(), &window);
    form.SetInitializations();
    form.showModally();
}

void openChooseWbmp(frmPrepare& window, Session& session, const FormCall& call)
{
    ChooseWbmpDialog(session, window.surface(), call.hit, &window);
}

struct ElementFormRow {
    const char* name;
    Open open;
};

constexpr ElementFormRow kElementForms[] = {
    {"frmArea", &openArea},
    {"frmTable", &openElement<frmTable>},
    {"frmOption", &openElement<frmOption>},
    {"frmImage", &openElement<frmImage>},
    {"ChooseWbmpDialog", &openChooseWbmp},
    {"frmLinks", &openElement<frmLinks>},
    {"frmTextFormat", &openTextFormat},
    {"frmJustify", &openJustify},
};

} // namespace

void registerElementForms(frmPrepare& window, Session& session)
{
    for (const auto& row : kElementForms)
        window.registerForm(row.name, [&window, &session, open = row.open](const FormCall& call) {
            open(window, session, call);
            window.SetFocusToBrowser();
        });
}

} // namespace quillmere
