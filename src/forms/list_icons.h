#pragma once

#include <QAbstractFileIconProvider>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QWidget>

// Small pictures of files and of ways through folders, in the colours of the window's palette.

namespace quillmere {

enum class ListIcon { Folder, Document, Computer, Back, Forward, Up, NewFolder, Tiles, Lines };

/// `window` tells the colours and the screen's resolution.
[[nodiscard]] QIcon listIcon(ListIcon icon, const QWidget& window);

/// These pictures for a dialog of files, without asking the desktop for each file.
class FileIcons final : public QAbstractFileIconProvider {
public:
    /// Draws them in the colours of a window.
    void draw(const QWidget& window);
    [[nodiscard]] QIcon icon(IconType type) const override;
    [[nodiscard]] QIcon icon(const QFileInfo& file) const override;

private:
    QIcon folder_;
    QIcon deck_;
    QIcon computer_;
};

/// Gives a dialog for files these pictures, and its list room for names. `icons` must outlive it,
/// since a thread of the dialog's asks for them.
void dressFileDialog(QFileDialog& dialog, FileIcons& icons);

} // namespace quillmere
