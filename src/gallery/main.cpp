// quillmere-gallery FILE      shows an area on the editing surface, with its text beside it
// quillmere-gallery --shots DIR [SAMPLES]  writes pictures of sample areas and of the windows into
// DIR and ends

#include "app/settings.h"
#include "app/word_resources.h"
#include "document/platform/disk_work_files.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"
#include "editor/design_surface.h"
#include "gallery/gallery_window.h"
#include "gallery/shots.h"
#include "gallery/window_shots.h"

#include <QApplication>

#include <iostream>

namespace quillmere {
namespace {

int showArea(const QString& path)
{
    DiskWorkFiles files;
    MemorySettings settings;
    settings.WriteSetting("Skins", QApplication::applicationDirPath().toStdString() + "/Skins/");
    WordResources words;
    words.LoadWordResources(settings);
    GalleryWindow window(files, words);
    window.surface().LoadURL(path.toStdString());
    window.resize(1100, 640);
    window.show();
    window.surface().setFocus();
    return QApplication::exec();
}

int run(const QStringList& arguments)
{
    const bool shots = arguments.value(1) == QStringLiteral("--shots");
    if (shots && arguments.size() > 2) {
        const auto own = QApplication::applicationDirPath() + "/Samples";
        writeShots(arguments.value(3, own), arguments.at(2));
        const auto shipped = QApplication::applicationDirPath();
        writeWindowShots(shipped + "/Skins", shipped + "/Examples", arguments.at(2));
        return 0;
    }
    if (!shots && arguments.size() == 2) return showArea(arguments.at(1));
    std::cerr << "quillmere-gallery FILE | --shots DIR [SAMPLES]\n";
    return 2;
}

} // namespace
} // namespace quillmere

int main(int argumentCount, char** arguments)
{
    const QApplication application(argumentCount, arguments);
    try {
        return quillmere::run(QApplication::arguments());
    } catch (const quillmere::Failure& failure) {
        std::cerr << quillmere::toUtf8(failure.description()) << '\n';
        return 1;
    }
}
