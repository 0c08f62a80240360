#include "breaks/NewVersionNotification.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "breaks/SmallWindows.h"

NewVersionNotification::NewVersionNotification(const QString& version, QObject* parent)
    : OvraWindow(SmallWindows::unique_name(QStringLiteral("new_version_screen")),
                 QStringLiteral("notifications/new_version_screen.html"), parent)
    , version(version)
{
    open_page(SmallWindows::notification_options(QStringLiteral("New version available"),
                                              QSize(360, 120)),
              ShowState::Normal);
}

void NewVersionNotification::page_loaded(bool ok)
{
    OvraWindow::page_loaded(ok);
    if (ok)
        load_finished();
}

// The version comes from the network: it reaches the page as a string
// literal, never as script.
void NewVersionNotification::load_finished()
{
    const QByteArray literal = QJsonDocument(QJsonArray{version}).toJson(QJsonDocument::Compact);
    evaluate_JavaScript(QStringLiteral("setNewVersion(%1[0]);").arg(QString::fromUtf8(literal)));
}

void NewVersionNotification::setScreenSize(int width, int height)
{
    if (width > 0 && height > 0)
        place_page(SmallWindows::bottom_right(QSize(width, height)));
}

void NewVersionNotification::installClicked()
{
    emit install_requested();
}

void NewVersionNotification::closeNotification()
{
    if (closing)
        return;
    closing = true;
    emit closed();
    close_page();
    deleteLater();
}
