#include "breaks/SmallWindows.h"

#include <QGuiApplication>
#include <QScreen>

namespace SmallWindows {

QString unique_name(const QString& kind)
{
    static int serial = 0;
    return kind + QLatin1Char('_') + QString::number(++serial);
}

WindowOptions notification_options(const QString& title, const QSize& start_size)
{
    WindowOptions options;
    options.size = start_size;
    options.title = title;
    options.frameless = true;
    options.stays_on_top = true;
    options.tooltip = true;
    options.translucent = true;
    options.no_focus = true;
    options.start_offscreen = true;
    return options;
}

QRect available_area()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

QRect bottom_right(const QSize& size)
{
    const QRect area = available_area();
    return QRect(QPoint(area.right() + 1 - size.width(), area.bottom() + 1 - size.height()), size);
}

QRect top_right(const QSize& size)
{
    const QRect area = available_area();
    return QRect(QPoint(area.right() + 1 - size.width(), area.top()), size);
}

QRect kept_on_desktop(const QRect& rect)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return rect;
    const QRect desktop = screen->virtualGeometry();
    QRect kept = rect;
    kept.moveLeft(qBound(desktop.left(), rect.left(), qMax(desktop.left(), desktop.right() + 1 - rect.width())));
    kept.moveTop(qBound(desktop.top(), rect.top(), qMax(desktop.top(), desktop.bottom() + 1 - rect.height())));
    return kept;
}

} // namespace SmallWindows
