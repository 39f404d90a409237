#pragma once

#include "document/platform/disk_work_files.h"
#include "document/platform/mount_table.h"
#include "editor/window/frm_prepare.h"
#include "forms/session.h"
#include "forms/system_file_dialogs.h"
#include "forms/window_messages.h"
#include "imageconv/alternative_text_painter_qt.h"
#include "imageconv/wbmp_display_copies.h"
#include "program/cls_registry.h"
#include "program/data_directories.h"

#include <QTranslator>

#include <string>

namespace quillmere {

/// What a start is given.
struct StartOptions {
    std::string commandLine; ///< the path of a deck, or ""
    QString screenshots; ///< a directory to write pictures of the windows to, and end; "": none
};

/// Display copies by the rules that hold at the moment: the setting may change while a deck is
/// open.
class CurrentDisplayCopies final : public DisplayCopies {
public:
    /// `session` is used once pictures are drawn.
    CurrentDisplayCopies(AlternativeTextPainter& painter, const DocumentSession& session)
        : painter_(painter)
        , session_(session)
    {
    }
    [[nodiscard]] DisplayCopy draw(
        const std::string& path, std::string_view text, std::int32_t backgroundColour) override
    {
        return WbmpDisplayCopies(session_.output, painter_).draw(path, text, backgroundColour);
    }

private:
    AlternativeTextPainter& painter_;
    const DocumentSession& session_;
};

/// The first instance of the program, from its settings to its end.
class Program {
public:
    explicit Program(StartOptions options);

    /// Shows the splash and the main window, and returns once that is closed.
    int run();
    /// Brings the main window to the front, once it stands.
    void showWindow();

private:
    // the start, in its order
    void ensureSettings();
    void showSplash();
    void decodeSkinAhead();
    void loadResources();
    void translateQt();
    void applySkins();
    void showMainWindow();
    void firstActivation();
    bool openCommandLine();
    void showAssistant();

    void registerForms();
    void noteDeck(bool isChanged);
    void tellTrouble();
    void showHelp(const QString& page);

    StartOptions options_;
    bool hasBegun_ = false; // firstActivation() ran
    bool isTroubleTold_ = false; // of the work files
    DataDirectories directories_;
    clsRegistry settings_;
    DiskFileSystem files_;
    MountTable drives_;
    DiskWorkFiles workFiles_;
    WordResources words_;
    QTranslator qtTexts_;
    FormResources forms_;
    WindowMessages messages_{words_};
    SystemFileDialogs fileDialogs_;
    QtAlternativeTextPainter painter_;
    Session session_;
    CurrentDisplayCopies displayCopies_{painter_, session_.document};
    PageStyle previewPage_{}; // of the active telephone
    frmPrepare window_;
};

} // namespace quillmere
