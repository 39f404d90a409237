// Held by tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/step_bar.h"

#include <QPainter>
#include <QPainterPath>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionSlider>

namespace quillmere {

namespace {

constexpr int kWidthPx = 24;
constexpr qreal kCornerPx = 4;
constexpr qreal kArrowPx = 4;

/// The two halves as arrows; the bar has no groove and no slider.
class StepStyle : public QProxyStyle {
public:
    StepStyle()
        : QProxyStyle(QStyleFactory::create("Fusion"))
    {
    }

    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
        SubControl part, const QWidget* widget) const override
    {
        if (control != CC_ScrollBar)
            return QProxyStyle::subControlRect(control, option, part, widget);
        const QRect upper = option->rect.adjusted(0, 0, 0, -option->rect.height() / 2);
        if (part == SC_ScrollBarSubLine) return upper;
        if (part != SC_ScrollBarAddLine) return {};
        return option->rect.adjusted(0, upper.height(), 0, 0);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
        QPainter* painter, const QWidget* widget) const override
    {
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_ScrollBar || bar == nullptr)
            return QProxyStyle::drawComplexControl(control, option, painter, widget);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(bar->palette.color(QPalette::Mid));
        painter->setBrush(bar->palette.color(QPalette::Button));
        painter->drawRoundedRect(
            QRectF(bar->rect).adjusted(0.5, 0.5, -0.5, -0.5), kCornerPx, kCornerPx);
        drawArrow(*painter, *bar, SC_ScrollBarSubLine, bar->sliderValue > bar->minimum);
        drawArrow(*painter, *bar, SC_ScrollBarAddLine, bar->sliderValue < bar->maximum);
    }

private:
    void drawArrow(
        QPainter& painter, const QStyleOptionSlider& bar, SubControl part, bool leadsOn) const
    {
        const QPointF tip = QRectF(subControlRect(CC_ScrollBar, &bar, part, nullptr)).center();
        const qreal up = part == SC_ScrollBarSubLine ? 1 : -1;
        QPainterPath arrow(tip + QPointF(-kArrowPx, up * kArrowPx / 2));
        arrow.lineTo(tip + QPointF(0, -up * kArrowPx / 2));
        arrow.lineTo(tip + QPointF(kArrowPx, up * kArrowPx / 2));
        const auto group = leadsOn ? bar.palette.currentColorGroup() : QPalette::Disabled;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(bar.palette.color(group, QPalette::ButtonText), 1.6));
        painter.drawPath(arrow);
    }
};

} // namespace

StepBar::StepBar(QWidget* parent)
    : QScrollBar(Qt::Vertical, parent)
{
    auto* const arrows = new StepStyle;
    arrows->setParent(this);
    setStyle(arrows);
    setFixedWidth(kWidthPx);
    setFocusPolicy(Qt::NoFocus);
}

} // namespace quillmere
