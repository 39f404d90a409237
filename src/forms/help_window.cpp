// Held by help_window_test.cpp, which also looks for the page of each form in the shipped help.

#include "forms/help_window.h"

#include "forms/overlay.h"
#include "forms/text.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace quillmere {

namespace {

constexpr QSize kSize{640, 560};
constexpr int kMarginPx = 20;
constexpr qint64 kMaxPageBytes = 4 << 20;
const auto kContents = QStringLiteral("inhalt");

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenExternalLinks(false);
    document()->setDocumentMargin(kMarginPx);
    setFrameShape(QFrame::NoFrame);
}

void HelpBrowser::showPage(const QString& file, const QString& anchor)
{
    folder_ = QFileInfo(file).canonicalPath();
    auto address = QUrl::fromLocalFile(file);
    address.setFragment(anchor);
    setSource(address);
}

bool HelpBrowser::isOwn(const QUrl& address) const
{
    const QFileInfo file(address.toLocalFile());
    return address.isLocalFile() && file.isFile() && file.size() <= kMaxPageBytes
        && (file.canonicalFilePath() + '/').startsWith(folder_ + '/');
}

QVariant HelpBrowser::loadResource(int type, const QUrl& address)
{
    const auto whole = source().resolved(address);
    return isOwn(whole) ? QTextBrowser::loadResource(type, whole) : QVariant();
}

void HelpBrowser::doSetSource(const QUrl& address, QTextDocument::ResourceType type)
{
    if (isOwn(source().resolved(address))) QTextBrowser::doSetSource(address, type);
}

HelpWindow::HelpWindow(const Session& session, QWidget* parent)
    : QWidget(parent, Qt::Window)
{
    setObjectName(QStringLiteral("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Hilfe"));
    btnContents->setText(QStringLiteral("&Inhalt"));
    btnBack->setText(QStringLiteral("&Zurück"));
    btnForward->setText(QStringLiteral("&Vor"));
    OverlayForm(*this, session);
    layOut();
    wire();
}

void HelpWindow::layOut()
{
    auto* buttons = new QHBoxLayout;
    for (auto* button : {btnContents, btnBack, btnForward})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(buttons);
    rows->addWidget(objHelp, 1);
    resize(kSize);
}

void HelpWindow::wire()
{
    connect(btnContents, &QToolButton::clicked, objHelp,
        [this] { objHelp->showPage(objHelp->source().toLocalFile(), kContents); });
    connect(btnBack, &QToolButton::clicked, objHelp, &QTextBrowser::backward);
    connect(btnForward, &QToolButton::clicked, objHelp, &QTextBrowser::forward);
    connect(objHelp, &QTextBrowser::backwardAvailable, btnBack, &QWidget::setEnabled);
    connect(objHelp, &QTextBrowser::forwardAvailable, btnForward, &QWidget::setEnabled);
    btnBack->setEnabled(false);
    btnForward->setEnabled(false);
}

bool HelpWindow::open(const Session& session, const QString& form, QWidget* parent)
{
    const auto file = shownPath(session.settings.ReadSetting("HelpFile"));
    if (file.isEmpty() || !QFileInfo(file).isFile()) return false;
    auto* window = parent->findChild<HelpWindow*>({}, Qt::FindDirectChildrenOnly);
    if (window == nullptr) window = new HelpWindow(session, parent);
    window->showPage(file, form);
    window->show();
    window->raise();
    window->activateWindow();
    return true;
}

void HelpWindow::showPage(const QString& file, const QString& form)
{
    objHelp->showPage(file, form);
    objHelp->setFocus();
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace quillmere
