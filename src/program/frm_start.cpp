// Held by start_test.cpp.

#include "program/frm_start.h"

#include "forms/skin_picture.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace quillmere {

namespace {

constexpr int kShownMs = 750;
constexpr QSize kPlainSize{480, 300};

} // namespace

frmStart::frmStart(const QString& picture, std::function<void()> work, std::function<void()> ahead,
    QWidget* parent)
    : QDialog(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
    , picture_(skinPicture(picture, devicePixelRatioF()))
    , work_(std::move(work))
    , ahead_(std::move(ahead))
{
    setObjectName(QStringLiteral("frmStart"));
    objTimer.setSingleShot(true);
    objTimer.setTimerType(Qt::PreciseTimer); // never longer than told
    objTimer.setInterval(kShownMs);
    connect(&objTimer, &QTimer::timeout, this, &frmStart::objTimer_Timer);
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    const auto size = picture_.isNull() ? kPlainSize : picture_.deviceIndependentSize().toSize();
    setFixedSize(size.boundedTo(screen.size()));
    move(screen.center() - rect().center());
}

void frmStart::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Form_Activate();
}

void frmStart::Form_Activate()
{
    if (!objTimer.isActive()) objTimer.start();
}

void frmStart::objTimer_Timer()
{
    work_();
    accept();
}

void frmStart::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    if (!picture_.isNull()) QPainter(this).drawPixmap(0, 0, picture_);
    if (ahead_) QTimer::singleShot(0, this, std::exchange(ahead_, nullptr));
}

void frmStart::keyPressEvent(QKeyEvent* event)
{
    event->accept();
}

void frmStart::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

} // namespace quillmere
