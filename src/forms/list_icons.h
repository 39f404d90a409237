#pragma once

#include <QIcon>
#include <QWidget>

// Small pictures ahead of the entries of a list, in the colours of its palette.

namespace quillmere {

/// A folder. `list` tells colours and the screen's resolution.
[[nodiscard]] QIcon folderIcon(const QWidget& list);
/// A sheet with lines: a deck.
[[nodiscard]] QIcon deckIcon(const QWidget& list);

} // namespace quillmere
