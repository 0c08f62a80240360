#include "breaks/NotificationScreen.h"

#include <QCoreApplication>

#include "breaks/SmallWindows.h"

NotificationScreen::NotificationScreen(const QString& type, QObject* parent)
    : OvraWindow(SmallWindows::unique_name(QStringLiteral("notification_screen")),
                 QStringLiteral("notifications/notification_screen.html"), parent)
    , type(type)
{
    if (!open_page(SmallWindows::notification_options(QStringLiteral("Notification"), QSize(380, 160)),
                   ShowState::Normal))
        deleteWindow();
}

QString NotificationScreen::GET_STRING(QString translation_string)
{
    return QCoreApplication::translate("Translator", translation_string.toLatin1().constData());
}

void NotificationScreen::setScreenSize(int width, int height)
{
    if (width > 0 && height > 0)
        place_page(SmallWindows::top_right(QSize(width, height)));
}

QString NotificationScreen::get_notification_type()
{
    return type;
}

void NotificationScreen::deleteWindow()
{
    if (deleting)
        return;
    deleting = true;
    close_page();
    deleteLater();
}

// Nobody is left to end the chain once the window is gone.
void NotificationScreen::page_gone()
{
    OvraWindow::page_gone();
    deleteWindow();
}
