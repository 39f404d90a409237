// The pictures come from the screen where it gives them, so that they show what a person sees.

#include "program/screenshots.h"

#include "forms/frm_assistent.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <utility>

namespace quillmere {

namespace {

constexpr int kSettleMs = 500; // until the desktop has drawn what was just shown

QPixmap pictureOf(QWidget& window)
{
    QPixmap seen;
    if (QGuiApplication::platformName() == QStringLiteral("xcb"))
        seen = window.screen()->grabWindow(window.winId());
    return seen.isNull() ? window.grab() : seen;
}

class Screenshots : public QObject {
public:
    Screenshots(frmPrepare& window, Session& session, QString directory)
        : QObject(&window)
        , window_(window)
        , session_(session)
        , directory_(std::move(directory))
    {
    }
    void start() { then(&Screenshots::takeMain); }

private:
    void then(void (Screenshots::*step)()) const { QTimer::singleShot(kSettleMs, this, step); }
    void takeMain()
    {
        write(window_, "main");
        clickSource();
        then(&Screenshots::takeSource);
    }
    void takeSource()
    {
        write(window_, "source");
        clickSource();
        then(&Screenshots::showAssistant);
    }
    void showAssistant()
    {
        then(&Screenshots::takeAssistant);
        frmAssistent::showAndRun(session_, {}, &window_);
        end();
    }
    void takeAssistant()
    {
        auto* form = QApplication::activeModalWidget();
        isWhole_ = isWhole_ && form != nullptr;
        if (form == nullptr) return;
        write(*form, "assistant");
        form->close();
    }
    void clickSource()
    {
        if (auto* button = window_.findChild<QAbstractButton*>("btnScript")) button->click();
    }
    void write(QWidget& window, const char* name)
    {
        const auto path = QDir(directory_).filePath(QString::fromLatin1(name) + ".png");
        if (QDir().mkpath(directory_) && pictureOf(window).save(path))
            std::printf("%s\n", qPrintable(path));
        else
            isWhole_ = false;
    }
    void end()
    {
        window_.closeAtOnce();
        window_.close();
        QApplication::exit(isWhole_ ? 0 : 1);
    }

    frmPrepare& window_;
    Session& session_;
    QString directory_;
    bool isWhole_ = true;
};

} // namespace

void takeScreenshots(frmPrepare& window, Session& session, const QString& directory)
{
    auto* screenshots = new Screenshots(window, session, directory); // goes with the window
    screenshots->start();
}

} // namespace quillmere
