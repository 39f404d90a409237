#pragma once

#include "forms/named.h"
#include "forms/session.h"

#include <QString>
#include <QTextBrowser>
#include <QToolButton>
#include <QWidget>

namespace quillmere {

/// Shows pages of the disk that lie beside or below the first one, and nothing from a network.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Goes to a file and a place in it; "": its begin.
    void showPage(const QString& file, const QString& anchor);

protected:
    QVariant loadResource(int type, const QUrl& address) override;
    void doSetSource(const QUrl& address, QTextDocument::ResourceType type) override;

private:
    [[nodiscard]] bool isOwn(const QUrl& address) const;

    QString folder_;
};

/// The window of the help. It goes with the window it was asked for in, so that it can be read
/// beside a dialog that keeps all others off. Escape closes it.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    HelpWindow(const Session& session, QWidget* parent);

    /// Shows the page of the form `form`, in the help window of `parent` where it has one. The file
    /// is that of the setting HelpFile; false where there is none.
    static bool open(const Session& session, const QString& form, QWidget* parent);

    void showPage(const QString& file, const QString& form);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void wire();

    HelpBrowser* const objHelp = named<HelpBrowser>("objHelp", this);
    QToolButton* const btnContents = named<QToolButton>("btnContents", this);
    QToolButton* const btnBack = named<QToolButton>("btnBack", this);
    QToolButton* const btnForward = named<QToolButton>("btnForward", this);
};

} // namespace quillmere
