#pragma once

#include "document/platform/prompter.h"
#include "forms/theme.h"

#include <QPixmap>

namespace quillmere {

/// The round sign of a message in the colours of the theme, at single and double size as `ratio`
/// has it; an information for MessageIcon::None.
[[nodiscard]] QPixmap messageIcon(MessageIcon icon, const Theme& theme, qreal ratio);

} // namespace quillmere
