// Held by tests/forms/messages_test.cpp.

#include "forms/system_file_dialogs.h"

#include "forms/list_icons.h"
#include "forms/session.h"
#include "forms/text.h"

#include <QApplication>
#include <QUrl>

namespace quillmere {

namespace {

struct Caption {
    const char* name;
    const char* text;
};

constexpr Caption kCaptions[] = {
    {"lblLookIn", "Suchen in:"},
    {"lblFileName", "Datei&name:"},
    {"lblFileType", "Dateityp:"},
    {"btnOpen", "\u00d6&ffnen"},
    {"btnSave", "&Speichern"},
    {"btnChoose", "&Ausw\u00e4hlen"},
    {"btnCancel", "Abbrechen"},
};

QString designText(std::string_view name)
{
    for (const auto& caption : kCaptions)
        if (name == caption.name) return QString::fromUtf8(caption.text);
    return {};
}

std::optional<QString> chosen(QFileDialog& dialog, FileIcons& icons)
{
    dressFileDialog(dialog, icons);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const auto files = dialog.selectedFiles();
    return files.isEmpty() ? std::nullopt : std::optional(files.front());
}

} // namespace

void SystemFileDialogs::label(
    QFileDialog& dialog, QFileDialog::DialogLabel place, const char* control) const
{
    auto text = designText(control);
    if (session_ != nullptr) {
        const auto& table = session_->forms.table();
        const auto* form = findForm(table, "frmFileDialog");
        const auto* entry = form != nullptr ? findControl(table, *form, control) : nullptr;
        if (entry != nullptr && !entry->Text.empty()) text = shownText(entry->Text);
    }
    dialog.setLabelText(place, text);
}

void SystemFileDialogs::prepare(
    QFileDialog& dialog, const FileQuestion& question, const char* accept) const
{
    dialog.setObjectName(QStringLiteral("frmFileDialog"));
    auto* modal = QApplication::activeModalWidget();
    dialog.setParent(modal != nullptr ? modal : QApplication::activeWindow(), Qt::Dialog);
    dialog.setWindowTitle(question.title);
    if (!question.directory.isEmpty()) dialog.setDirectory(question.directory);
    if (!question.filter.isEmpty()) dialog.setNameFilter(question.filter);
    const auto suffix = question.suffix;
    dialog.setDefaultSuffix(suffix.startsWith('.') ? suffix.mid(1) : suffix);
    label(dialog, QFileDialog::LookIn, "lblLookIn");
    label(dialog, QFileDialog::FileName, "lblFileName");
    label(dialog, QFileDialog::FileType, "lblFileType");
    label(dialog, QFileDialog::Accept, accept);
    label(dialog, QFileDialog::Reject, "btnCancel");
    if (!question.name.isEmpty()) dialog.selectFile(question.name);
}

std::optional<QString> SystemFileDialogs::openFile(const FileQuestion& question)
{
    FileIcons icons;
    QFileDialog dialog;
    dialog.setFileMode(QFileDialog::ExistingFile);
    prepare(dialog, question, "btnOpen");
    return chosen(dialog, icons);
}

std::optional<QString> SystemFileDialogs::saveFile(const FileQuestion& question)
{
    FileIcons icons;
    QFileDialog dialog;
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the callers ask with a text of their own
    prepare(dialog, question, "btnSave");
    return chosen(dialog, icons);
}

std::optional<QString> SystemFileDialogs::chooseFolder(const FileQuestion& question)
{
    FileIcons icons;
    QFileDialog dialog;
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    prepare(dialog, question, "btnChoose");
    return chosen(dialog, icons);
}

} // namespace quillmere
