#pragma once

#include "forms/tool_picture.h"

#include <QAbstractButton>

namespace quillmere {

/// The click area of a tool, `lblButton...`. The icon at rest is part of the window's picture below
/// it; the label draws its caption, and over all of it that the pointer is on it, that it is
/// disabled, and a ring where the keyboard put the focus. While it is held it shows its picture.
/// A caption stands below the icon, in an area much wider than high beside it; one that is too wide
/// takes a smaller font. Colours are those of its palette: Window its ground, WindowText its
/// caption, Highlight the accent and HighlightedText what stands on that.
class ToolLabel : public QAbstractButton {
    Q_OBJECT

public:
    /// `picture` may be null; it stands below this widget and is shown while this is held.
    ToolLabel(const QString& name, ToolPicture* picture, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// A button of the mouse went down on the area. Actions belong to clicked(), which keys and the
    /// desktop's helpers cause as well, and a release outside of the area does not.
    void mouseDown(Qt::MouseButton button);
    /// It went up again, wherever the pointer is by then; behind clicked().
    void mouseUp(Qt::MouseButton button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] bool isBeside() const;
    [[nodiscard]] QRect captionPlace() const;
    void paintCaption(QPainter& painter) const;
    void showHeld();
    void letGo();

    ToolPicture* const picture_;
    bool keyboardFocus_ = false;
    bool rightDown_ = false;
};

} // namespace quillmere
