#pragma once

#include "editor/picture_cache.h"
#include "editor/surface_style.h"

#include <QObject>
#include <QTextDocument>
#include <QTextObjectInterface>

namespace quillmere {

/// Draws the objects of a page into its text: pictures, the radio buttons of options, chips for
/// markup that cannot be shown, and the ends of groups. Sizes are in pixels of the page, whatever
/// the screen's resolution.
class InlineObjects : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit InlineObjects(PictureCache& pictures, QObject* parent = nullptr);
    void setStyle(const SurfaceStyle& style) { style_ = style; }
    /// Makes this draw the objects of `document`.
    void attachTo(QTextDocument& document);

    [[nodiscard]] QSizeF intrinsicSize(
        QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
        const QTextFormat& format) override;

private:
    PictureCache& pictures_;
    SurfaceStyle style_;
};

} // namespace quillmere
