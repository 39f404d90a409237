#include "document/file_system.h"

#include "document/failure.h"
#include "document/windows1252.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(DiskFileSystem, TellsFilesFromDirectoriesAndMakesThem)
{
    const test::ScratchFolder folder;
    folder.put("b/x.wml", "");
    folder.put(".hidden/y", "");
    DiskFileSystem disk;
    disk.makeDirectory(folder.path() + "a");
    disk.makeDirectory(folder.path() + "a/"); // is there already
    EXPECT_EQ(disk.directoriesIn(folder.path()), (std::vector<std::string>{"a", "b"}));
    EXPECT_TRUE(disk.directoryExists(folder.path() + "a/"));
    EXPECT_TRUE(disk.fileExists(folder.path() + "b/x.wml"));
    EXPECT_FALSE(disk.directoryExists(folder.path() + "b/x.wml"));
    EXPECT_FALSE(disk.fileExists(folder.path() + "b") || disk.fileExists(folder.path() + "c"));
    EXPECT_TRUE(disk.directoriesIn(folder.path() + "c").empty());
}

TEST(DiskFileSystem, SaysWhyADirectoryCannotBeMade)
{
    const test::ScratchFolder folder;
    folder.put("datei", "");
    const struct {
        const char *path, *reason;
    } rows[] = {{"datei", "es gibt schon eine Datei mit diesem Namen"},
        {"datei/x", "ein Teil des Pfades ist kein Ordner"},
        {"fehlt/x", "Datei oder Ordner gibt es nicht"}};
    for (const auto& row : rows) {
        const auto path = folder.path() + row.path;
        try {
            DiskFileSystem().makeDirectory(path);
            FAIL() << path;
        } catch (const FileFailure& failure) {
            EXPECT_EQ(toUtf8(failure.description()),
                "Der Ordner „" + path + "“ kann nicht angelegt werden: " + row.reason + ".");
        }
    }
}

} // namespace
} // namespace quillmere
