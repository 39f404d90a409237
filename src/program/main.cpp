// quillmere [DECK]: the program with its window.

#include "document/text/failure.h"
#include "program/command_line_deck.h"
#include "program/program.h"
#include "program/single_instance.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QIcon>
#include <QMessageBox>

namespace quillmere {
namespace {

constexpr double kFontPt = 9.75; // 13 pixels at 96 dpi

void setLook()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font(QStringLiteral("Inter"));
    font.setPointSizeF(kFontPt);
    QApplication::setFont(font);
    const auto logo = QString::fromStdString(AppDirectory()) + QStringLiteral("Logo.ico");
    if (QFile::exists(logo)) QApplication::setWindowIcon(QIcon(logo));
}

StartOptions optionsOf(std::span<char* const> arguments)
{
    StartOptions options;
    const bool shots = arguments.size() >= 2 && std::string_view(arguments[0]) == "--screenshots";
    if (shots) options.screenshots = QFile::decodeName(arguments[1]);
    options.commandLine = commandLineOf(arguments.subspan(shots ? 2 : 0),
        QFile::encodeName(QDir::currentPath()).toStdString() + "/");
    return options;
}

int start(std::span<char* const> arguments)
{
    SingleInstance instance(settingsFile());
    if (!instance.isFirst()) {
        instance.ActivatePreviousInstance();
        return 0;
    }
    setLook();
    Program program(optionsOf(arguments));
    instance.onAsked([&program] { program.showWindow(); });
    return program.run();
}

} // namespace
} // namespace quillmere

int main(int argumentCount, char** arguments)
{
    const QApplication application(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("Quillmere"));
    QApplication::setApplicationDisplayName(QStringLiteral("MORVANE Quillmere"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));
    try {
        return quillmere::start(
            std::span(arguments, static_cast<std::size_t>(argumentCount)).subspan(1));
    } catch (const quillmere::Failure& failure) {
        // Without a place for work files, say, there is no program yet that could show it.
        QMessageBox::critical(nullptr, QApplication::applicationDisplayName(),
            QString::fromStdString(failure.utf8()));
        return 1;
    }
}
