// What the page asks of the native side when it builds itself: the platform,
// the name, the scale, and which pages of the advanced menu to hide.
#include <QGuiApplication>
#include <QScreen>

#include "app/MainWindow.h"
#include "settings/Defines.h"
#include "settings/FeaturesSettings.h"
#include "settings/SaveKeys.h"
#include "web/UiScale.h"

// ---------------------------------------------------------------- hidden pages

// Before the list is built from the first restore, the stored one stands.
QVariantList MainWindow::get_unused_pages()
{
    if (!features_settings)
        return settings[QString::fromLatin1(SaveKeys::UNUSED_PAGES)].toList();
    return features_settings->get_unused_pages();
}

void MainWindow::clean_unused_pages()
{
    features_settings->clean_unused_pages();
}

void MainWindow::add_unused_page(QString page)
{
    features_settings->add_unused_page(page);
    refresh_unused_pages();
}

void MainWindow::remove_unused_page(QString page)
{
    features_settings->remove_unused_page(page);
    refresh_unused_pages();
}

// The page answers by asking for the list.
void MainWindow::refresh_unused_pages()
{
    emit refresh_unused_pages_signal();
}

// ---------------------------------------------------------------- the page's set-up

QString MainWindow::get_os_name()
{
    return QStringLiteral("Linux");
}

QString MainWindow::get_application_name()
{
    return QString::fromUtf8(Defines::APPLICATION_NAME);
}

bool MainWindow::is_retina_display()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return UiScale::is_double_scale(settings[QString::fromLatin1(SaveKeys::UI_SCALE)].toInt(),
                                    screen ? screen->geometry() : QRect());
}

// The page swaps its scale class and reports its new size.
void MainWindow::refresh_scale()
{
    emit refresh_ui_scale();
}
