// tests/forms/skin_application_test.cpp holds this.

#include "forms/window_outline.h"

#include "document/text/failure.h"
#include "forms/screen_twips.h"
#include "skins/skin_files.h"

#include <QPolygon>
#include <QWindow>

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::size_t kMostPoints = 4096;
constexpr int kFarthest = 16384; // a polygon's cost grows with its height

/// The outline with its spare corner (0, 0); none for a file that cannot be read.
std::vector<DevicePoint> outlineFor(const QWidget& form, const SettingsStore& settings)
{
    try {
        return readOutline(settings, IsBigFonts(screenTwips(form).x));
    } catch (const FileFailure&) {
        return {}; // a window with corners is better than none
    }
}

QPolygon polygonOf(const std::vector<DevicePoint>& points)
{
    QPolygon polygon;
    for (const auto& point : points)
        polygon << QPoint(
            std::clamp(point.X, -kFarthest, kFarthest), std::clamp(point.Y, -kFarthest, kFarthest));
    return polygon;
}

} // namespace

void SetWindowOutline(QWidget& form, const SettingsStore& settings, QRegion& region)
{
    region = QRegion();
    const auto points = outlineFor(form, settings);
    if (points.size() < 3 || points.size() > kMostPoints) return;
    // The spare corner at (0, 0) is one of the polygon's.
    region = QRegion(polygonOf(points), Qt::OddEvenFill);
    if (!region.intersects(form.rect())) region = QRegion(); // the window would vanish
    if (!region.isEmpty()) form.setMask(region);
}

void ClearWindowOutline(QWidget& form, QRegion& region)
{
    form.clearMask();
    region = QRegion();
}

void DragWindow(QWidget& form)
{
    if (auto* window = form.window()->windowHandle()) window->startSystemMove();
}

} // namespace quillmere
