// Held by type_edits_test.cpp and edit_promises_test.cpp.

#include "editor/page/edit_draft.h"
#include "editor/page/page_edits.h"

namespace quillmere {

SurfaceEdit typeText(
    const SurfacePage& page, PagePlace from, PagePlace to, std::u16string_view typed)
{
    EditDraft draft(page, from, to, typed.empty() ? FirstFormats::Go : FirstFormats::Stay);
    draft.putText(typed);
    return draft.finish();
}

SurfaceEdit pasteMarkup(
    const SurfacePage& page, PagePlace from, PagePlace to, std::string_view markup)
{
    EditDraft draft(page, from, to, FirstFormats::Go);
    draft.putMarkup(markup);
    return draft.finish();
}

} // namespace quillmere
