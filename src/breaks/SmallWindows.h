#pragma once

#include <QRect>
#include <QSize>
#include <QString>

#include "web/WebHost.h"

// What the small page windows of the breaks share: their names on the
// channel, how they are prepared, and where they go once their page knows
// its size.
namespace SmallWindows {

// A name no other window has had in this run: a window that goes later
// (its page animating out) never takes a newer one's place with it.
QString unique_name(const QString& kind);

// Frameless, above the others, outside the window manager and transparent
// where the page draws nothing; off-screen until the page reports a size.
WindowOptions notification_options(const QString& title, const QSize& start_size);

// The free area of the primary monitor, without panels.
QRect available_area();
QRect bottom_right(const QSize& size);
QRect top_right(const QSize& size);
// The rect moved so that it stays on the desktop.
QRect kept_on_desktop(const QRect& rect);

} // namespace SmallWindows
