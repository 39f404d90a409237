// Drawn as lines on a grid of 16. Held by messages_test.cpp and the pictures of the gallery.

#include "forms/list_icons.h"

#include <QHeaderView>
#include <QPainter>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kSidePx = 16;
constexpr qreal kLinePx = 1.4;
constexpr QSize kDialogSize{680, 440};
constexpr int kTypeColumn = 2; // of the dialog's list: name, size, type, time

/// Lines of corners; ';' begins another line.
struct Shape {
    ListIcon icon;
    QPalette::ColorRole role;
    const char* lines;
};
constexpr Shape kShapes[] = {
    {ListIcon::Folder, QPalette::Link,
        "1.5,12.5 1.5,3.5 6,3.5 7.5,5.5 14.5,5.5 14.5,12.5 1.5,12.5"},
    {ListIcon::Document, QPalette::Text,
        "3.5,1.5 12.5,1.5 12.5,14.5 3.5,14.5 3.5,1.5;6,5.5 10,5.5;6,8 10,8;6,10.5 10,10.5"},
    {ListIcon::Computer, QPalette::Text,
        "1.5,2.5 14.5,2.5 14.5,11 1.5,11 1.5,2.5;8,11 8,14;5,14 11,14"},
    {ListIcon::Back, QPalette::ButtonText, "13,8 3,8;7,4 3,8 7,12"},
    {ListIcon::Forward, QPalette::ButtonText, "3,8 13,8;9,4 13,8 9,12"},
    {ListIcon::Up, QPalette::ButtonText, "8,13 8,3;4,7 8,3 12,7"},
    {ListIcon::NewFolder, QPalette::ButtonText,
        "8,12.5 1.5,12.5 1.5,3.5 6,3.5 7.5,5.5 14.5,5.5 14.5,8;12,10 12,14;10,12 14,12"},
    {ListIcon::Tiles, QPalette::ButtonText,
        "2,2 7,2 7,7 2,7 2,2;9,2 14,2 14,7 9,7 9,2;2,9 7,9 7,14 2,14 2,9;9,9 14,9 14,14 9,14 9,9"},
    {ListIcon::Lines, QPalette::ButtonText, "2,4 14,4;2,8 14,8;2,12 14,12"},
};

void draw(QPainter& painter, const char* lines)
{
    for (const auto& line : QString::fromLatin1(lines).split(u';')) {
        QPolygonF corners;
        for (const auto& corner : line.split(u' '))
            corners << QPointF(
                corner.section(u',', 0, 0).toDouble(), corner.section(u',', 1).toDouble());
        painter.drawPolyline(corners);
    }
}

QPixmap drawn(const Shape& shape, const QWidget& window, QPalette::ColorRole role,
    QPalette::ColorGroup group = QPalette::Active)
{
    const auto ratio = window.devicePixelRatioF();
    QPixmap picture(QSize(kSidePx, kSidePx) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto ink = window.palette().color(group, role);
    painter.setPen(QPen(ink, kLinePx, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    draw(painter, shape.lines);
    return picture;
}

struct DialogButton {
    const char* name; // as Qt's own dialog calls it
    ListIcon icon;
};
constexpr DialogButton kDialogButtons[] = {
    {"backButton", ListIcon::Back},
    {"forwardButton", ListIcon::Forward},
    {"toParentButton", ListIcon::Up},
    {"newFolderButton", ListIcon::NewFolder},
    {"listModeButton", ListIcon::Tiles},
    {"detailModeButton", ListIcon::Lines},
};

} // namespace

void FileIcons::draw(const QWidget& window)
{
    folder_ = listIcon(ListIcon::Folder, window);
    deck_ = listIcon(ListIcon::Document, window);
    computer_ = listIcon(ListIcon::Computer, window);
}

QIcon FileIcons::icon(IconType type) const
{
    if (type == Computer || type == Drive) return computer_;
    return type == File ? deck_ : folder_;
}

QIcon FileIcons::icon(const QFileInfo& file) const
{
    return file.isDir() ? folder_ : deck_;
}

QIcon listIcon(ListIcon icon, const QWidget& window)
{
    const auto& shape = *std::ranges::find(kShapes, icon, &Shape::icon);
    QIcon result(drawn(shape, window, shape.role));
    result.addPixmap(drawn(shape, window, QPalette::HighlightedText), QIcon::Selected);
    result.addPixmap(drawn(shape, window, shape.role, QPalette::Disabled), QIcon::Disabled);
    result.addPixmap(
        drawn(shape, window, QPalette::HighlightedText), QIcon::Normal, QIcon::On); // pressed in
    return result;
}

void dressFileDialog(QFileDialog& dialog, FileIcons& icons)
{
    icons.draw(dialog);
    dialog.setIconProvider(&icons);
    for (const auto& row : kDialogButtons)
        if (auto* button = dialog.findChild<QToolButton*>(QLatin1String(row.name)))
            button->setIcon(listIcon(row.icon, dialog));
    auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (list == nullptr) return; // the desktop shows a dialog of its own
    list->header()->hideSection(kTypeColumn);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    dialog.resize(kDialogSize);
}

} // namespace quillmere
