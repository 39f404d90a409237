#pragma once

#include "forms/file_dialogs.h"

#include <QFileDialog>

namespace quillmere {

struct Session;

/// The desktop's dialogs for files and folders or, where it has none, Qt's, over the window that is
/// in front. Captions come from the form resource "frmFileDialog" (lblLookIn, lblFileName,
/// lblFileType, btnOpen, btnSave, btnChoose, btnCancel).
class SystemFileDialogs final : public FileDialogs {
public:
    /// Captions of the resources are taken from then on.
    void useSession(const Session& session) { session_ = &session; }

    [[nodiscard]] std::optional<QString> openFile(const FileQuestion& question) override;
    [[nodiscard]] std::optional<QString> saveFile(const FileQuestion& question) override;
    [[nodiscard]] std::optional<QString> chooseFolder(const FileQuestion& question) override;

private:
    void prepare(QFileDialog& dialog, const FileQuestion& question, const char* accept) const;
    void label(QFileDialog& dialog, QFileDialog::DialogLabel place, const char* control) const;

    const Session* session_ = nullptr;
};

} // namespace quillmere
