// Each hue is moved towards black or white until it can be read on all grounds. Held by
// source_edit_test.cpp.

#include "editor/window/source_colours.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmere {
namespace {

constexpr int kSteps = 20;

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/// `share` of `over` on the rest of `under`.
QColor mixed(const QColor& under, const QColor& over, double share)
{
    const auto channel = [share](int below, int above) {
        return static_cast<int>(std::lround(below + (above - below) * share));
    };
    return {channel(under.red(), over.red()), channel(under.green(), over.green()),
        channel(under.blue(), over.blue())};
}

class Grounds {
public:
    explicit Grounds(const SourceColours& colours)
        : grounds_{colours.ground, colours.lineGround, colours.numberGround, colours.hitGround}
        , extreme_(worst(Qt::black) > worst(Qt::white) ? Qt::black : Qt::white)
    {
    }
    /// The colour of this hue that can be read on all grounds.
    [[nodiscard]] QColor readable(const QColor& hue) const
    {
        for (int step = 0; step < kSteps; ++step) {
            const auto tried = mixed(hue, extreme_, double(step) / kSteps);
            if (worst(tried) >= kTextContrast) return tried;
        }
        return extreme_;
    }

private:
    [[nodiscard]] double worst(const QColor& text) const
    {
        double least = contrastOf(text, grounds_.front());
        for (const auto& ground : grounds_)
            least = std::min(least, contrastOf(text, ground));
        return least;
    }

    std::array<QColor, 4> grounds_;
    QColor extreme_;
};

} // namespace

double contrastOf(const QColor& left, const QColor& right)
{
    const auto [dark, light] = std::minmax({luminance(left), luminance(right)});
    return (light + 0.05) / (dark + 0.05);
}

SourceColours sourceColours(const QPalette& palette)
{
    SourceColours colours;
    colours.ground = palette.color(QPalette::Base);
    // The tones go away from the ink on grounds of a middle lightness, where each step costs.
    const auto ink = palette.color(QPalette::Text);
    const bool isTight = contrastOf(colours.ground, ink) < 2 * kTextContrast;
    const QColor away
        = contrastOf(colours.ground, Qt::black) > contrastOf(colours.ground, Qt::white) ? Qt::white
                                                                                        : Qt::black;
    const auto toned
        = [&](double share) { return mixed(colours.ground, isTight ? away : ink, share); };
    colours.lineGround = toned(0.06);
    colours.numberGround = toned(0.04);
    colours.hitGround = toned(0.18);

    const Grounds grounds(colours);
    colours.ink = grounds.readable(ink);
    colours.number = grounds.readable(mixed(ink, colours.ground, 0.4));
    colours.comment = grounds.readable(mixed(ink, colours.ground, 0.35));
    colours.tag = grounds.readable(QColor(0x1F, 0x6F, 0xC8));
    colours.attribute = grounds.readable(QColor(0x0E, 0x84, 0x78));
    colours.value = grounds.readable(QColor(0xA8, 0x5A, 0x0A));
    colours.entity = grounds.readable(QColor(0x8E, 0x4F, 0xC0));
    colours.error = grounds.readable(QColor(0xD2, 0x3A, 0x2E));
    return colours;
}

} // namespace quillmere
