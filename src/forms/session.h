#pragma once

#include "app/form_resources.h"
#include "app/word_resources.h"
#include "document/platform/deck_file_watch.h"
#include "document/platform/drives.h"
#include "document/platform/file_system.h"
#include "document/session.h"
#include "forms/deck_window.h"
#include "forms/file_dialogs.h"
#include "forms/messages.h"
#include "skins/skin_files.h"
#include "skins/user_devices.h"

#include <functional>
#include <string>
#include <vector>

namespace quillmere {

/// All that the windows share: the open deck, the settings, the texts, the skins and the flags. It
/// is passed by reference; there is no other state that lasts.
struct Session {
    SettingsStore& settings;
    Messages& messages;
    FileDialogs& fileDialogs;
    const FileSystem& files;
    const Drives& drives;
    WordResources& words;
    FormResources& forms;
    DocumentSession document; ///< stands on the settings, messages and words above
    SkinTables skins{};
    std::vector<UserDevice> devices{};
    DeckWindow* window = nullptr; ///< the main window, once there is one
    ImageEntry lastImage{}; ///< the picture that the image dialog handed over last
    bool gSurfaceActive = false; ///< the person works on the surface
    /// Called by the main window after work files were written, so that a later start can tell
    /// what they belong to; the argument tells whether the deck differs from its file.
    std::function<void(bool deckChanged)> afterStore{};
    /// The work file of the source view's text, while that is not taken over yet; "": none.
    std::string sourcePath{};
    /// Whoever opens, makes or saves the deck has the file remembered; asked ahead of a save.
    DeckFileWatch deckFile{};
};

} // namespace quillmere
