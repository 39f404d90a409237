#pragma once

#include "editor/window/frm_prepare.h"
#include "forms/session.h"

#include <QString>

namespace quillmere {

/// Writes pictures of the main window, the source view and the assistant into `directory`, prints
/// their paths and ends the program; status 1 where a picture could not be written.
void takeScreenshots(frmPrepare& window, Session& session, const QString& directory);

} // namespace quillmere
