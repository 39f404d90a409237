#pragma once

#include "forms/screen_twips.h"

#include <QString>
#include <QWidget>

#include <vector>

// Forms whose controls stand at fixed places were drawn for 15 twips a pixel. On other screens they
// keep their size in pixels, and their fonts with it. Forms with a layout need none of this.

namespace quillmere {

/// A form or one of its controls, in twips of the screen at hand; the font in points.
struct ScaledControl {
    QString name;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    double fontSize = 0;
};

/// Scales `form` and its `controls`: sizes, places and fonts go with the screen's twips over 15,
/// but for the controls that are placed or styled elsewhere. The form then grows to hold them all.
void scaleForm(
    ScaledControl& form, std::vector<ScaledControl>& controls, const ScreenTwips& screen);

/// The same for a window and those of its direct children that stand at fixed places. `flag` is
/// true wherever it is called. A form with a layout stays as it is: the layout holds its controls.
void ScaleFormToScreen(QWidget& form, bool flag);

} // namespace quillmere
