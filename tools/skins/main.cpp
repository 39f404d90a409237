// make-skins ICONS DATA: writes the skins, the splash and the program's icon below the directory
// DATA, from the tables of this program and the SVG files of the directory ICONS. What is there
// already and right is not touched; texts are kept by hand.

#include "document/text/failure.h"
#include "editor_pictures.h"
#include "editor_records.h"
#include "program_pictures.h"
#include "telephones.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <iostream>
#include <string>

namespace quillmere {

namespace {

template <typename Records> void writeRecords(const QString& path, const Records& records)
{
    std::string bytes;
    for (const auto& record : records)
        appendRecord(bytes, record);
    writeFile(path, QByteArray::fromStdString(bytes));
}

void writeEditorSkins(const BuilderPlaces& places)
{
    std::vector<SkinRecord> records;
    for (const auto& tokens : kEditorTokens) {
        writeEditorPictures(places, tokens);
        records.push_back(editorRecord(tokens));
    }
    writeRecords(places.skins + "Adjust.ini", records);
    writeRecords(places.skins + "AdjPnt.ini", windowOutline());
    writeRecords(places.skins + "AdjPntBg.ini", windowOutline());
}

void writeTelephones(const BuilderPlaces& places)
{
    std::vector<PreviewSkinRecord> records;
    std::vector<PreviewSkinRecord> bigRecords;
    for (std::size_t i = 0; i < telephones().size(); ++i) {
        writeTelephonePictures(places, telephones()[i]);
        records.push_back(telephoneRecord(i, false));
        bigRecords.push_back(telephoneRecord(i, true));
    }
    writeRecords(places.skins + "AdjuPrev.ini", records);
    writeRecords(places.skins + "AdjuBig.ini", bigRecords);
    writeFile(places.skins + "UserDef.ini", QByteArray::fromStdString(userDevicesText()));
}

/// The set in another language has two texts of its own and, by links, all the rest.
void linkOtherLanguage(const QString& from, const QString& to)
{
    for (const auto& name : QDir(from).entryList(QDir::Files)) {
        if (name.startsWith("Res") || QFileInfo::exists(to + name)) continue;
        QFile::link("../" + QDir(from).dirName() + "/" + name, to + name);
    }
}

void writeAll(const QString& icons, const QString& data)
{
    const BuilderPlaces places{icons + "/", data + "/Skins/"};
    QDir().mkpath(places.skins);
    QDir().mkpath(data + "/Skins.en");
    writeEditorSkins(places);
    writeTelephones(places);
    writeSplash(places);
    writeChoicePictures(places);
    writeProgramIcon(places, data + "/");
    linkOtherLanguage(data + "/Skins", data + "/Skins.en/");
}

} // namespace

} // namespace quillmere

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "make-skins ICONS DATA\n";
        return 1;
    }
    try {
        quillmere::writeAll(arguments[1], arguments[2]);
    } catch (const quillmere::Failure& failure) {
        std::cerr << failure.utf8() << '\n';
        return 2;
    }
    return 0;
}
