#pragma once

#include "skins/skin_files.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QPushButton>

namespace quillmere {

/// The colours of all windows, taken from a skin of the editor so that dialogs look like the main
/// window.
struct Theme {
    QColor shell{0x26, 0x32, 0x3A}; ///< windows
    QColor panel{0x1D, 0x27, 0x2E}; ///< fields
    QColor well{0x15, 0x1D, 0x22};
    QColor hairline{0x3B, 0x4A, 0x54};
    QColor edge{0x7A, 0x8E, 0x9A}; ///< of fields and buttons
    QColor ink{0xE9, 0xEF, 0xF2};
    QColor muted{0xA9, 0xB8, 0xC0};
    QColor accent{0xF2, 0xA5, 0x41};
    QColor onAccent{0x2B, 0x1B, 0x00};
    QColor danger{0xF0, 0x8A, 0x74};
    QColor onDanger{0x33, 0x0B, 0x04};
    QColor display{0xD3, 0xDE, 0xB4};
    QColor displayInk{0x1B, 0x24, 0x10};
};

/// The colours of a skin. A pair of which ground and ink are the same, as in the records of makers
/// who fill only what controls take, is made from the window's.
[[nodiscard]] Theme themeOf(const SkinRecord& skin);

/// The colours of the active skin; those above where there is none.
[[nodiscard]] Theme activeTheme(SkinTables& tables);

/// `share` of the way from one colour to the other.
[[nodiscard]] QColor blended(const QColor& from, const QColor& to, double share);

[[nodiscard]] QPalette paletteOf(const Theme& theme);

/// Gives all windows of the program the theme: its style (theme_style.h), its palette and Inter in
/// 13 pixels at 96 dpi. May be called again when the skin changes.
void applyTheme(QApplication& application, const Theme& theme);

/// Marks a button that deletes, so that it has the colour of danger.
void markAsDanger(QPushButton& button);

} // namespace quillmere
