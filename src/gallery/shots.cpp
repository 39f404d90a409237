// A shot is a row: an area, what is done to it, and the picture's name.

#include "gallery/shots.h"

#include "document/platform/disk_work_files.h"
#include "document/text/failure.h"
#include "editor/design_surface.h"
#include "editor/page_geometry.h"

#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QTextDocument>

#include <algorithm>

namespace quillmere {
namespace {

enum class Done { CaretBehind, Mark, Click, ClickTable };

// In the order in which the rows read best.
struct Shot { // NOLINT(clang-analyzer-optin.performance.Padding)
    const char* name;
    const char* area;
    Done done;
    const char* text; ///< what the caret stands behind, or what is marked
    bool losesNothing = false; ///< by which rules it is read
    bool isPaper = false; ///< black on white
};

constexpr Shot kShots[] = {
    {"absaetze", "absaetze.htm", Done::CaretBehind, "Lindenplatz"},
    {"absaetze-markiert", "absaetze.htm", Done::Mark, "frischen Kuchen und den besten"},
    {"tabelle", "tabelle.htm", Done::CaretBehind, "Apfelstrudel"},
    {"tabelle-gewaehlt", "tabelle.htm", Done::ClickTable, ""},
    {"verschachtelt", "verschachtelt.htm", Done::CaretBehind, "Ole"},
    {"bilder", "bilder.htm", Done::CaretBehind, "Wolken."},
    {"bild-gewaehlt", "bilder.htm", Done::Click, ""},
    {"auswahl", "auswahl.htm", Done::CaretBehind, "Tisch bestellen"},
    {"aelter", "aelter.htm", Done::CaretBehind, "Schnitzel"},
    {"lang", "lang.htm", Done::Mark, "kauft Brot dazu"},
    {"formular", "formular.htm", Done::CaretBehind, "Ort: ", true},
    {"formular-papier", "formular.htm", Done::Mark, "Torte bestellen", true, true},
};

constexpr int kScreens[] = {96, 120, 192}; // dpi

SurfaceStyle paper()
{
    SurfaceStyle style;
    style.ink = {0x1A, 0x1F, 0x16};
    style.ground = {0xFB, 0xFD, 0xF4};
    return style;
}

void click(DesignSurface& surface, QPointF documentPoint)
{
    const auto press = [&](QEvent::Type type) {
        QMouseEvent event(type, documentPoint, surface.viewport()->mapToGlobal(documentPoint),
            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(surface.viewport(), &event);
    };
    press(QEvent::MouseButtonPress);
    press(QEvent::MouseButtonRelease);
}

void clickFirstPicture(DesignSurface& surface)
{
    const auto& page = surface.page();
    const auto picture = std::ranges::find(page.items, ItemKind::Picture, &PageItem::kind);
    if (picture == page.items.end()) return;
    const auto index = static_cast<std::size_t>(picture - page.items.begin());
    const auto block = std::ranges::find_if(
        page.blocks, [&](const PageBlock& each) { return index < each.endItem; });
    const PagePlace place{
        static_cast<std::size_t>(block - page.blocks.begin()), index - block->firstItem};
    click(surface, itemRect(*surface.document(), place).center());
}

void prepare(DesignSurface& surface, const Shot& shot)
{
    surface.moveCursor(QTextCursor::Start);
    switch (shot.done) {
    case Done::CaretBehind:
        surface.find(QString::fromUtf8(shot.text));
        surface.setCaretOffset(surface.caretOffset());
        break;
    case Done::Mark:
        surface.find(QString::fromUtf8(shot.text));
        break;
    case Done::Click:
        clickFirstPicture(surface);
        break;
    case Done::ClickTable:
        click(surface, tableRect(*surface.document(), surface.page(), 0).topLeft());
        break;
    }
}

QImage photograph(DesignSurface& surface, int dpi)
{
    const double scale = dpi / 96.0;
    QImage picture((QSizeF(surface.size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    surface.render(&picture);
    return picture;
}

} // namespace

void writeShots(const QString& samples, const QString& directory)
{
    QApplication::setCursorFlashTime(0); // the caret does not blink
    QDir().mkpath(directory);
    DiskWorkFiles files;
    for (const auto& shot : kShots) {
        DesignSurface surface(files);
        surface.resize(480, shot.losesNothing ? 560 : 420);
        surface.setRules(OutputRules(shot.losesNothing));
        if (shot.isPaper) surface.setLook(paper());
        surface.show();
        surface.activateWindow();
        surface.setFocus();
        surface.LoadURL((samples + '/' + shot.area).toStdString());
        QApplication::processEvents();
        prepare(surface, shot);
        for (const int dpi : kScreens) {
            const auto path = QStringLiteral("%1/%2-%3.png").arg(directory, shot.name).arg(dpi);
            if (!photograph(surface, dpi).save(path))
                throw FileFailure(
                    "Das Bild " + path.toStdString() + " kann nicht geschrieben werden.");
        }
    }
}

} // namespace quillmere
