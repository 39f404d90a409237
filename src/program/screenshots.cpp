// The pictures come from the screen where it gives them, so that they show what a person sees.

#include "program/screenshots.h"

#include "forms/frm_assistent.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <functional>

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
    Screenshots(frmPrepare& window, Session& session, const QString& directory)
        : QObject(&window)
        , window_(window)
        , session_(session)
        , directory_(directory)
    {
    }

    void start()
    {
        then([this] {
            write(window_, "main");
            clickSource();
            then([this] {
                write(window_, "source");
                clickSource();
                then([this] { showAssistant(); });
            });
        });
    }

private:
    void then(const std::function<void()>& step) { QTimer::singleShot(kSettleMs, this, step); }
    void clickSource()
    {
        if (auto* button = window_.findChild<QAbstractButton*>("btnScript")) button->click();
    }
    void showAssistant()
    {
        then([this] {
            auto* form = QApplication::activeModalWidget();
            if (form == nullptr) return end(1);
            write(*form, "assistant");
            form->close();
        });
        frmAssistent::showAndRun(session_, {}, &window_);
        end(isWhole_ ? 0 : 1);
    }
    void write(QWidget& window, const char* name)
    {
        const auto path = QDir(directory_).filePath(QString::fromLatin1(name) + ".png");
        if (QDir().mkpath(directory_) && pictureOf(window).save(path))
            std::printf("%s\n", qPrintable(path));
        else
            isWhole_ = false;
    }
    void end(int status)
    {
        window_.closeAtOnce();
        window_.close();
        QApplication::exit(status);
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
