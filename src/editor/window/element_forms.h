#pragma once

#include "editor/window/frm_prepare.h"

namespace quillmere {

/// Makes the dialogs of areas, their elements and formats known to the tools of the window. Both
/// must outlive the tools.
void registerElementForms(frmPrepare& window, Session& session);

} // namespace quillmere
