#pragma once

#include "document/platform/words.h"
#include "document/platform/work_files.h"

#include <QMainWindow>

class QLabel;
class QPlainTextEdit;

namespace quillmere {

class DesignSurface;

/// An area on the surface with its design text beside it, live. The caret's place is marked there
/// and its offset told below.
class GalleryWindow : public QMainWindow {
    Q_OBJECT

public:
    GalleryWindow(WorkFiles& files, const Words& words, QWidget* parent = nullptr);
    [[nodiscard]] DesignSurface& surface() { return *surface_; }

private:
    void showText();
    void showCaret();

    DesignSurface* surface_;
    QPlainTextEdit* text_;
    QLabel* offset_;
};

} // namespace quillmere
