#pragma once

#include <QPixmap>
#include <QWidget>

namespace quillmere {

/// A picture of a skin, at its own size from the widget's top left corner. It lets the mouse
/// through to what lies below. `picButton...` controls are such pictures: hidden at rest, shown
/// while their tool is held.
class ToolPicture : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QPixmap picture READ picture WRITE setPicture)

public:
    explicit ToolPicture(const QString& name, QWidget* parent);

    [[nodiscard]] QPixmap picture() const { return picture_; }
    void setPicture(const QPixmap& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
};

/// A window whose ground is a picture of the skin. What the picture leaves transparent, such as
/// what lies outside of its round corners, is not painted.
class SkinWindow : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QPixmap picture READ picture WRITE setPicture)

public:
    explicit SkinWindow(QWidget* parent = nullptr);

    [[nodiscard]] QPixmap picture() const { return picture_; }
    void setPicture(const QPixmap& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
};

} // namespace quillmere
