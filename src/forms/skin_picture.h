#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

namespace quillmere {

/// Loads a picture of a skin for a screen with `ratio` device pixels in a pixel: above 1 the
/// picture "NAME@2x.ENDING" beside it where there is one. A null picture for one that cannot be
/// loaded, that is no file or larger than any window.
[[nodiscard]] QPixmap skinPicture(const QString& path, qreal ratio);

/// Gives a picture to a control: to its property `picture` where it has one, else as a label's
/// picture or a button's icon, the button then without its text beside it only where it has none.
/// Controls without a place for pictures pass.
void showPicture(QWidget& control, const QPixmap& picture);

} // namespace quillmere
