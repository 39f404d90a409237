#pragma once

#include "document/platform/settings_store.h"
#include "forms/screen_twips.h"
#include "skins/skin_files.h"

#include <QColor>
#include <QRect>
#include <QString>
#include <QWidget>

#include <functional>

// The active skin, laid over the windows. Places and sizes of the records are pixels of a screen at
// 96 dpi, which Qt scales by itself; sizes of fonts are points. Controls are found by their object
// names, those that are not there pass.

namespace quillmere {

/// A page as the skin wants it, for the editing surface or the preview's display.
struct PageLook {
    QRect place; ///< in the window; without the surface's scroll bar, which comes to its width
    QColor fgColor;
    QColor bgColor;
    int fontSizePx = 0;
    QString fontFamily;
};

/// The rest of what a page needs is its own: the callback styles it. It also places it.
using StylePage = std::function<void(const PageLook&)>;

/// A colour of a record, which has red in its low byte.
[[nodiscard]] QColor skinColour(std::int32_t colour);

/// Decodes the pictures of the active editor skin, so that its application finds them decoded.
/// `ratio` is that of the screen's pixels. What cannot be decoded is passed over.
void decodePicturesAhead(SkinTables& tables, const SettingsStore& settings, qreal ratio);

/// Sets one control from one item: place (but for frmPrepare), size, font, colours and picture, in
/// this order. What the item leaves blank stays, and so does the picture that cannot be loaded.
/// `directory` ends in its separator.
void ApplyItem(QWidget& control, const SkinItem& item, const QString& directory);

/// Dresses the main window in the active skin of `tables`: the window, the page by way of `surface`
/// (null for none), then every control in the order of skin_controls.h. Without an active skin
/// nothing changes.
void ApplyEditorSkin(QWidget& frmPrepare, SkinTables& tables, const SettingsStore& settings,
    const StylePage& surface);

/// The same for the preview and the active telephone; the pressed keys are hidden. The window's
/// ground is that of lblAddress.
void ApplyPreviewSkin(QWidget& frmPreview, SkinTables& tables, const SettingsStore& settings,
    const StylePage& display);

/// How the page of an item looks on a screen.
[[nodiscard]] PageLook pageLook(const SkinItem& item, const ScreenTwips& twips);

/// The place of the editing surface: the size of its item, but no larger than the maker's place for
/// it, and in that place's middle where it is smaller. `scrollBarWidth` comes to the width.
[[nodiscard]] QRect surfacePlace(const SkinRecord& skin, int scrollBarWidth);

/// Places of the main window that no item has, made from those round them.
struct FreePlaces {
    QRect fileName; ///< in the title, behind the name
    QRect characters; ///< the count, beside the area's caption
    QRect firstNote; ///< lblToolTipForbtnAreaPrev, left of the navigation
    QRect lastNote; ///< lblToolTipAreaNext, right of it
};

[[nodiscard]] FreePlaces freePlaces(const SkinRecord& skin);

} // namespace quillmere
