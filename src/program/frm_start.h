#pragma once

#include <QDialog>
#include <QPixmap>
#include <QTimer>

#include <functional>

namespace quillmere {

/// The splash. It stands for 750 ms from its first showing, does its work then, and goes. While it
/// stands there is time to get ready for what comes behind it.
class frmStart : public QDialog {
    Q_OBJECT

public:
    /// `picture` fills the form; without one that can be loaded the form is plain.
    /// `ahead` runs as soon as the form is painted.
    frmStart(const QString& picture, std::function<void()> work,
        std::function<void()> ahead = nullptr, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; // no key closes it
    void closeEvent(QCloseEvent* event) override; // nor anyone else
    void reject() override { }

private:
    void Form_Activate();
    void objTimer_Timer();

    QTimer objTimer;
    QPixmap picture_;
    std::function<void()> work_;
    std::function<void()> ahead_; // until it has run
};

} // namespace quillmere
