#include "gallery/gallery_window.h"

#include "document/platform/word_ids.h"
#include "document/text/windows1252.h"
#include "editor/design_surface.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QStatusBar>

namespace quillmere {

GalleryWindow::GalleryWindow(WorkFiles& files, const Words& words, QWidget* parent)
    : QMainWindow(parent)
    , surface_(new DesignSurface(files))
    , text_(new QPlainTextEdit)
    , offset_(new QLabel)
{
    auto* halves = new QSplitter(this);
    halves->addWidget(surface_);
    halves->addWidget(text_);
    setCentralWidget(halves);
    text_->setReadOnly(true);
    text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    statusBar()->addPermanentWidget(offset_);
    connect(surface_, &DesignSurface::changed, this, &GalleryWindow::showText);
    connect(surface_, &QTextEdit::cursorPositionChanged, this, &GalleryWindow::showCaret);
    connect(surface_, &DesignSurface::failed, this,
        [this](const QString& description) { statusBar()->showMessage(description, 8000); });
    const auto notIntoTable = toUtf8(words.GetWord(word::kNotIntoTable));
    connect(surface_, &DesignSurface::elementMovedIntoTable, this,
        [this, message = QString::fromStdString(notIntoTable).simplified()] {
            statusBar()->showMessage(message, 8000);
        });
}

void GalleryWindow::showText()
{
    text_->setPlainText(QString::fromStdString(toUtf8(surface_->DocumentHTML())));
    showCaret();
}

void GalleryWindow::showCaret()
{
    const auto offset = surface_->caretOffset();
    const auto& text = surface_->DocumentHTML();
    // the widget joins CR LF to one line end
    const auto ahead = QString::fromStdString(toUtf8(text.substr(0, offset))).remove(u'\r');
    auto caret = text_->textCursor();
    caret.setPosition(static_cast<int>(ahead.size()));
    text_->setTextCursor(caret);
    QTextEdit::ExtraSelection mark;
    mark.cursor = caret;
    mark.cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    mark.format.setBackground(surface_->look().ink);
    mark.format.setForeground(surface_->look().ground);
    text_->setExtraSelections({mark});
    offset_->setText(QStringLiteral("Stelle %1 von %2").arg(offset).arg(text.size()));
}

} // namespace quillmere
