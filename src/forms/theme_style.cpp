// All shapes are drawn half a pixel in, so that their lines of one pixel are sharp. What is not
// named here Fusion draws in the theme's palette. tests/forms/theme_test.cpp holds this.

#include "forms/theme_style.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kButtonCorner = 8;
constexpr int kFieldCorner = 6;
constexpr int kLeastHeight = 32; // of all that can be clicked
constexpr int kIndicatorSize = 18;
constexpr int kScrollBarWidth = 14; // the skins leave this room beside the surface

/// Keeps the painter as it was.
class PainterGuard {
public:
    explicit PainterGuard(QPainter& painter)
        : painter_(painter)
    {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    PainterGuard(const PainterGuard&) = delete;
    PainterGuard& operator=(const PainterGuard&) = delete;
    PainterGuard(PainterGuard&&) = delete;
    PainterGuard& operator=(PainterGuard&&) = delete;
    ~PainterGuard() { painter_.restore(); }

private:
    QPainter& painter_;
};

void drawShape(QPainter& painter, const QRect& place, double corner, const QColor& fill,
    const QColor& edge, double width = 1)
{
    const double inset = width / 2;
    painter.setBrush(fill);
    painter.setPen(QPen(edge, width));
    painter.drawRoundedRect(
        QRectF(place).adjusted(inset, inset, -inset, -inset), corner - inset, corner - inset);
}

bool is(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

bool isDefaultButton(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

bool isDangerous(const QWidget* widget)
{
    return widget != nullptr && widget->property(kDangerProperty).toBool();
}

void drawChevron(QPainter& painter, const QPointF& middle, const QColor& ink)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF({middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)}));
}

void drawTick(QPainter& painter, const QRectF& place, const QColor& ink)
{
    const auto at = [&](double x, double y) {
        return QPointF(place.x() + place.width() * x, place.y() + place.height() * y);
    };
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({at(0.26, 0.52), at(0.43, 0.69), at(0.75, 0.33)}));
}

} // namespace

ThemeStyle::ThemeStyle(const Theme& theme)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    , theme_(theme)
{
}

void ThemeStyle::drawButton(
    const QStyleOption& option, QPainter& painter, const QWidget* widget) const
{
    const bool enabled = is(option, State_Enabled);
    const bool filled
        = enabled && (isDefaultButton(option) || is(option, State_Sunken) || is(option, State_On));
    const bool dangerous = isDangerous(widget);
    QColor ground = option.palette.color(QPalette::Button);
    QColor edge = enabled ? theme_.edge : theme_.hairline;
    if (filled)
        ground = edge = dangerous ? theme_.danger : theme_.accent;
    else if (enabled && dangerous)
        edge = theme_.danger;
    if (enabled && is(option, State_Sunken))
        ground = blended(ground, theme_.shell, 0.15);
    else if (enabled && is(option, State_MouseOver))
        ground = blended(ground, theme_.ink, 0.09);
    drawShape(painter, option.rect, kButtonCorner, ground, edge);
    if (!is(option, State_HasFocus) || !is(option, State_KeyboardFocusChange)) return;
    // Two lines, so that the ring is seen on a button in the accent as well.
    drawShape(painter, option.rect, kButtonCorner, Qt::transparent, theme_.accent, 2);
    drawShape(painter, option.rect.adjusted(2, 2, -2, -2), kButtonCorner - 2, Qt::transparent,
        theme_.shell, 1);
}

/// A field that has the focus shows it whichever way it came: the person writes there.
void ThemeStyle::drawField(const QStyleOption& option, QPainter& painter) const
{
    const bool focused = is(option, State_HasFocus) && is(option, State_Enabled);
    const auto edge = is(option, State_Enabled) ? theme_.edge : theme_.hairline;
    drawShape(painter, option.rect, kFieldCorner, option.palette.color(QPalette::Base),
        focused ? theme_.accent : edge, focused ? 2 : 1);
}

void ThemeStyle::drawRing(const QStyleOption& option, QPainter& painter) const
{
    if (!is(option, State_KeyboardFocusChange)) return;
    const auto& place = option.rect;
    drawShape(painter, place, kFieldCorner, Qt::transparent, theme_.accent, 2);
}

void ThemeStyle::drawBox(const QStyleOption& option, QPainter& painter, bool round) const
{
    const bool enabled = is(option, State_Enabled);
    const bool on = is(option, State_On);
    QRect place(QPoint(), QSize(kIndicatorSize, kIndicatorSize));
    place.moveCenter(option.rect.center());
    QColor ground = option.palette.color(QPalette::Base);
    if (on)
        ground = enabled ? theme_.accent : theme_.hairline;
    else if (enabled && is(option, State_MouseOver))
        ground = blended(ground, theme_.ink, 0.09);
    const QColor edge = !enabled ? theme_.hairline : on ? theme_.accent : theme_.edge;
    drawShape(painter, place, round ? kIndicatorSize / 2.0 : 4, ground, edge);
    const QColor ink = enabled ? theme_.onAccent : theme_.muted;
    if (on && !round) drawTick(painter, QRectF(place), ink);
    if (!on || !round) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QRectF(place).center(), 4, 4);
}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
    QPainter* painter, const QWidget* widget) const
{
    const PainterGuard guard(*painter);
    switch (element) {
    case PE_PanelButtonCommand:
    case PE_PanelButtonBevel:
        return drawButton(*option, *painter, widget);
    case PE_FrameDefaultButton:
        return; // the default button is filled
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame != nullptr && frame->lineWidth > 0)
            return drawField(*option, *painter);
        break;
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea*>(widget) == nullptr) break;
        return drawShape(*painter, option->rect, 2, Qt::transparent,
            is(*option, State_HasFocus)      ? theme_.accent
                : is(*option, State_Enabled) ? theme_.edge
                                             : theme_.hairline);
    case PE_FrameFocusRect:
        return drawRing(*option, *painter);
    case PE_IndicatorCheckBox:
        return drawBox(*option, *painter, false);
    case PE_IndicatorRadioButton:
        return drawBox(*option, *painter, true);
    default:
        break;
    }
    painter->setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
    const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != CE_PushButtonLabel || button == nullptr)
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionButton label(*button);
    // Fusion leaves an icon and its text hardly apart.
    if (!label.icon.isNull() && !label.text.isEmpty()) label.text.prepend(QLatin1Char(' '));
    const bool dangerous = isDangerous(widget);
    if (!is(*option, State_Enabled)) {
        // stays in the palette's faint ink
    } else if (isDefaultButton(*option) || is(*option, State_Sunken) || is(*option, State_On)) {
        label.palette.setColor(QPalette::ButtonText, dangerous ? theme_.onDanger : theme_.onAccent);
    } else if (dangerous) {
        label.palette.setColor(QPalette::ButtonText, theme_.danger);
    }
    QProxyStyle::drawControl(element, &label, painter, widget);
}

void ThemeStyle::drawScrollBar(
    const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const
{
    constexpr int kMargin = 4;
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(&option);
    const bool upright = slider != nullptr && slider->orientation == Qt::Vertical;
    const QRect groove = proxy()->subControlRect(CC_ScrollBar, &option, SC_ScrollBarGroove, widget);
    painter.fillRect(option.rect, option.palette.color(QPalette::Base));
    if (slider == nullptr || slider->maximum <= slider->minimum || groove.isEmpty()) return;
    QRect handle = proxy()->subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, widget);
    handle.adjust(upright ? kMargin : 1, upright ? 1 : kMargin, upright ? -kMargin : -1,
        upright ? -1 : -kMargin);
    const bool active = is(option, State_Sunken) || is(option, State_MouseOver);
    const QColor ink = option.palette.color(QPalette::Text);
    painter.setPen(Qt::NoPen);
    painter.setBrush(blended(option.palette.color(QPalette::Base), ink, active ? 0.8 : 0.6));
    painter.drawRoundedRect(handle, 3, 3);
}

void ThemeStyle::drawCombo(
    const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const
{
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
    QStyleOption field;
    field.rect = option.rect;
    field.palette = option.palette;
    field.state = option.state;
    field.state.setFlag(State_HasFocus,
        is(option, State_HasFocus) && (combo->editable || is(option, State_KeyboardFocusChange)));
    drawField(field, painter);
    const QRect arrow = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
    drawChevron(painter, QRectF(arrow).center(), option.palette.color(QPalette::Text));
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
    QPainter* painter, const QWidget* widget) const
{
    const PainterGuard guard(*painter);
    if (control == CC_ScrollBar) return drawScrollBar(*option, *painter, widget);
    if (control == CC_ComboBox && qstyleoption_cast<const QStyleOptionComboBox*>(option) != nullptr)
        return drawCombo(*option, *painter, widget);
    painter->setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect ThemeStyle::subElementRect(
    SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    constexpr int kTextMargin = 4;
    const QRect usual = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? usual.adjusted(kTextMargin, 0, -kTextMargin, 0) : usual;
}

/// A scroll bar without arrows: the groove is all of it.
QRect ThemeStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
    SubControl part, const QWidget* widget) const
{
    constexpr int kLeastSlider = 28;
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const bool upright = bar->orientation == Qt::Vertical;
    const QRect& all = bar->rect;
    const int length = upright ? all.height() : all.width();
    const auto range = std::max<qint64>(0, qint64(bar->maximum) - bar->minimum);
    const auto wanted = length * qint64(bar->pageStep) / std::max<qint64>(1, range + bar->pageStep);
    const int slider = int(std::clamp<qint64>(wanted, std::min(length, kLeastSlider), length));
    const int start = sliderPositionFromValue(
        bar->minimum, bar->maximum, bar->sliderPosition, length - slider, bar->upsideDown);
    const auto piece = [&](int from, int size) {
        const QRect result = upright ? QRect(all.x(), all.y() + from, all.width(), size)
                                     : QRect(all.x() + from, all.y(), size, all.height());
        return visualRect(bar->direction, all, result);
    };
    switch (part) {
    case SC_ScrollBarGroove:
        return all;
    case SC_ScrollBarSlider:
        return piece(start, slider);
    case SC_ScrollBarSubPage:
        return piece(0, start);
    case SC_ScrollBarAddPage:
        return piece(start + slider, length - start - slider);
    default:
        return {};
    }
}

QSize ThemeStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton) result.rwidth() = std::max(result.width() + 12, 88);
    if (type == CT_PushButton || type == CT_ComboBox || type == CT_LineEdit || type == CT_SpinBox)
        result.rheight() = std::max(result.height(), kLeastHeight);
    return result;
}

int ThemeStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return 16;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 8;
    case PM_ScrollBarExtent:
        return kScrollBarWidth;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kIndicatorSize;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ThemeStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const
{
    constexpr int kAcceptOnTheRight = 3;
    if (hint == SH_DialogButtonLayout) return kAcceptOnTheRight;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    if (hint == SH_EtchDisabledText) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace quillmere
