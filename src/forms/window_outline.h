#pragma once

#include "document/platform/settings_store.h"

#include <QRegion>
#include <QWidget>

namespace quillmere {

/// Clips the window to the polygon of the outline file for the window's screen. Hands its region
/// out: an empty one, and the window as it was, without the setting of skins, and where the file
/// has no outline that shows anything.
void SetWindowOutline(QWidget& form, const SettingsStore& settings, QRegion& region);

/// Takes the shape off and empties the region.
void ClearWindowOutline(QWidget& form, QRegion& region);

/// Starts a move of a window without a title bar; the pointer's button is down on it. Nothing
/// happens where the system has no such moves.
void DragWindow(QWidget& form);

} // namespace quillmere
