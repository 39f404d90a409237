#pragma once

#include "skin_tokens.h"
#include "skins/skin_records.h"

#include <vector>

namespace quillmere {

/// The record of one editor skin, whose maker is Morvane.
[[nodiscard]] SkinRecord editorRecord(const SkinTokens& tokens);

/// The main window's rounded outline. It ends where it begins: the corner (0, 0) that its readers
/// put behind the points is then the tip of a spike without width, which takes nothing away.
[[nodiscard]] std::vector<DevicePoint> windowOutline();

} // namespace quillmere
