#pragma once

#include "app/settings.h"
#include "document/platform/disk_work_files.h"
#include "forms/session.h"
#include "gui/scripted_person.h"
#include "imageconv/alternative_text_painter_qt.h"
#include "imageconv/wbmp_display_copies.h"
#include "support/fake_platform.h"
#include "support/scratch_folder.h"

#include <filesystem>
#include <string>

namespace quillmere::test {

/// All that windows stand on: settings in memory, work files in a private directory, the shipped
/// texts and skins, and a person with prepared answers. Files of the test go to `folder`.
struct WindowSession {
    ScratchFolder folder;
    MemorySettings settings;
    ScriptedMessages messages;
    ScriptedFileDialogs dialogs;
    DiskFileSystem disk;
    FakeDrives drives;
    DiskWorkFiles workFiles{folder.path()};
    QtAlternativeTextPainter painter{QFont()};
    WbmpDisplayCopies copies{OutputRules(), painter};
    WordResources words;
    FormResources forms;
    Session session;

    /// `skins` is a folder of data/.
    explicit WindowSession(const std::string& skins = "Skins")
        : session{settings, messages, dialogs, disk, drives, words, forms,
            DocumentSession{workFiles, copies, messages, settings, words, OutputRules()}}
    {
        settings.WriteSetting("Skins", skinsCopy(skins));
        drives.current = folder.path();
        words.LoadWordResources(settings);
        forms.LoadFormResources(settings);
    }

private:
    // What the program may write is copied, all else is only named.
    std::string skinsCopy(const std::string& name) const
    {
        namespace fs = std::filesystem;
        auto copy = folder.path() + "Skins/";
        fs::create_directory(copy);
        for (const auto& file : fs::directory_iterator(QUILLMERE_SOURCE_DIR "/data/" + name)) {
            const auto target = copy + file.path().filename().string();
            if (file.path().extension() == ".ini")
                fs::copy_file(file.path(), target);
            else
                fs::create_symlink(file.path(), target);
        }
        return copy;
    }
};

} // namespace quillmere::test
