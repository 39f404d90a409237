#pragma once

#include "editor/window/frm_prepare.h"

namespace quillmere {

/// A row of the tables of commands: a tool button, an entry of a menu, or a key.
struct frmPrepare::Command {
    const char* control; ///< behind "lblButton" and "picButton" of a tool; else the entry's name
    const char* caption; ///< unless the resources have another
    const char* hint; ///< tool tip of a tool, key of an entry or of a row of kKeys
    Guards guards; ///< what must be so, else a message tells it
    const char* form; ///< that must be there ahead of all; "" for none
    void (frmPrepare::*action)();
    const char* menu = ""; ///< of an entry
};

} // namespace quillmere
