#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quillmere::test {

/// Runs `use` with the next modal window that comes up, which is what a person does with it. A
/// window that `use` leaves open is closed, so that the test goes on.
inline void withNextModal(std::function<void(QWidget&)> use)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, use = std::move(use)] {
        auto* window = QApplication::activeModalWidget();
        if (window == nullptr) return;
        timer->deleteLater();
        timer->stop();
        if (!QTest::qWaitForWindowActive(window)) ADD_FAILURE() << "not active";
        use(*window);
        QTimer::singleShot(0, window, [window] {
            if (!window->isVisible()) return;
            ADD_FAILURE() << window->objectName().toStdString() << " was left open";
            window->close();
        });
    });
    timer->start(1);
}

/// The control of this name, which must be there.
template <class Control = QWidget> Control& control(QWidget& window, const char* name)
{
    auto* found = window.findChild<Control*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::logic_error(std::string("no control ") + name);
    return *found;
}

inline void click(QWidget& window, const char* name)
{
    QTest::mouseClick(&control(window, name), Qt::LeftButton);
}

} // namespace quillmere::test
