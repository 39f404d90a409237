#pragma once

#include "forms/theme.h"

#include <QProxyStyle>

namespace quillmere {

inline constexpr char kDangerProperty[] = "dangerous";

/// Qt's Fusion style with the theme's fields, buttons, boxes and slim scroll bars: round corners,
/// edges that can be seen, the default button in the accent, one ring for the keyboard's focus.
class ThemeStyle : public QProxyStyle {
public:
    explicit ThemeStyle(const Theme& theme);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
        QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] QRect subElementRect(
        SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
        SubControl part, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
        const QSize& size, const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(
        PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* data) const override;

private:
    void drawButton(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void drawField(const QStyleOption& option, QPainter& painter) const;
    void drawRing(const QStyleOption& option, QPainter& painter) const;
    void drawBox(const QStyleOption& option, QPainter& painter, bool round) const;
    void drawScrollBar(
        const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
    void drawCombo(
        const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;

    Theme theme_;
};

} // namespace quillmere
