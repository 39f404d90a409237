// The least that a Qt program with a window for text is: what the start of quillmere is held
// against.

#include <QApplication>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

int main(int argumentCount, char** arguments)
{
    const QApplication application(argumentCount, arguments);
    QApplication::setStyle("Fusion");
    QWidget window(nullptr, Qt::FramelessWindowHint);
    auto* rows = new QVBoxLayout(&window);
    auto* tools = new QToolBar(&window);
    for (const auto* name : {"Neu", "Sichern", "Hilfe"})
        tools->addAction(name);
    rows->addWidget(tools);
    auto* text = new QTextEdit("<p>Guten <b>Tag</b></p>", &window);
    rows->addWidget(text);
    window.resize(960, 700);
    window.show();
    return QApplication::exec();
}
