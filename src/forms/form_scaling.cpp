// A pixel of a form as drawn is 15 twips there and fewer on a screen of more dots, so a factor
// below 1 gives the same pixels. tests/forms/form_scaling_test.cpp holds this.

#include "forms/form_scaling.h"

#include "skins/skin_files.h"

#include <QLayout>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr double kRightMargin = 50; // twips
constexpr double kUploadMargin = 150;

template <std::size_t Count> bool isOneOf(const QString& name, const char* const (&names)[Count])
{
    return std::any_of(std::begin(names), std::end(names),
        [&](const char* other) { return name == QLatin1String(other); });
}

constexpr const char* kUntouched[] = {"objDialog", "objTempPicture"};
constexpr const char* kPlacedElsewhere[] = {"objPreviewBrowser", "lblCurAreaCaption"};
constexpr const char* kOwnFont[] = {"objBrowserCard", "objPreviewBrowser", "objTemplateBrowser",
    "lblCardCaption", "lblTaskCaption", "lblCurAreaCaption"};
constexpr const char* kWiderThanForm[] = {"picPictureSkin", "picSkin"};

void scaleControl(ScaledControl& control, double factorX, double factorY)
{
    if (!isOneOf(control.name, kPlacedElsewhere)) {
        control.left *= factorX;
        control.top *= factorY;
        if (control.name != QLatin1String("objBrowserCard")) {
            control.width *= factorX;
            control.height *= factorY;
        }
    }
    if (!isOneOf(control.name, kOwnFont)) control.fontSize *= factorY;
}

/// The furthest edges of the controls.
struct Edges {
    double right = 0;
    double bottom = 0;
};

void growTo(ScaledControl& form, const Edges& edges, const ScreenTwips& screen)
{
    if (form.name != QLatin1String("frmPreview")) {
        if (form.height <= edges.bottom) form.height = edges.bottom;
        if (form.width <= edges.right + kRightMargin) form.width = edges.right + kRightMargin;
    }
    if (form.name == QLatin1String("frmUploadExtended") && IsBigFonts(screen.x)
        && form.height <= edges.bottom + kUploadMargin)
        form.height = edges.bottom + kUploadMargin;
}

/// A widget as drawn: its pixels are those of a screen of 15 twips.
ScaledControl asDrawn(const QWidget& widget)
{
    const auto& place = widget.geometry();
    return {widget.objectName(), double(place.left() * kDesignTwips),
        double(place.top() * kDesignTwips), double(place.width() * kDesignTwips),
        double(place.height() * kDesignTwips), widget.font().pointSizeF()};
}

void setFontSize(QWidget& widget, double points)
{
    if (points <= 0 || points == widget.font().pointSizeF()) return; // a font in pixels has none
    QFont font = widget.font();
    font.setPointSizeF(points);
    widget.setFont(font);
}

int pixels(double twips, int twipsPerPixel)
{
    return int(std::lround(twips / twipsPerPixel));
}

void setScaled(QWidget& widget, const ScaledControl& scaled, const ScreenTwips& screen)
{
    widget.setGeometry(pixels(scaled.left, screen.x), pixels(scaled.top, screen.y),
        pixels(scaled.width, screen.x), pixels(scaled.height, screen.y));
    setFontSize(widget, scaled.fontSize);
}

} // namespace

void scaleForm(ScaledControl& form, std::vector<ScaledControl>& controls, const ScreenTwips& screen)
{
    const double factorX = double(screen.x) / kDesignTwips;
    const double factorY = double(screen.y) / kDesignTwips;
    form.width *= factorX;
    form.height *= factorY;
    form.fontSize *= factorY;
    Edges edges;
    for (auto& control : controls) {
        if (isOneOf(control.name, kUntouched)) continue;
        scaleControl(control, factorX, factorY);
        if (!isOneOf(control.name, kWiderThanForm))
            edges.right = std::max(edges.right, control.left + control.width);
        edges.bottom = std::max(edges.bottom, control.top + control.height);
    }
    growTo(form, edges, screen);
}

void ScaleFormToScreen(QWidget& form, bool /*flag*/)
{
    if (form.layout() != nullptr) return;
    const auto screen = screenTwips(form);
    const auto widgets = form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    std::vector<ScaledControl> controls;
    for (const auto* widget : widgets)
        controls.push_back(asDrawn(*widget));
    auto scaled = asDrawn(form);
    scaleForm(scaled, controls, screen);
    form.resize(pixels(scaled.width, screen.x), pixels(scaled.height, screen.y));
    // A control whose font is the form's has it before the form's changes.
    for (std::size_t i = 0; i < controls.size(); ++i)
        setScaled(*widgets[qsizetype(i)], controls[i], screen);
    setFontSize(form, scaled.fontSize);
}

} // namespace quillmere
