#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace quillmere {

/// One of a few large choices: a picture, the text of the button as a title, and its tool tip as a
/// line below. The title is in the palette's text, the line in its placeholder colour.
class PictureChoice : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QPixmap picture READ picture WRITE setPicture)

public:
    explicit PictureChoice(QWidget* parent);

    [[nodiscard]] const QPixmap& picture() const { return picture_; }
    void setPicture(const QPixmap& picture);
    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// The mouse came over the choice, or the keyboard reached it; or it left again.
    void highlighted(bool on);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] QFont titleFont() const;

    QPixmap picture_;
};

/// The look of a choice that the mouse is over: lies on it and lets the mouse through.
class ChoiceHighlight : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceHighlight(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillmere
