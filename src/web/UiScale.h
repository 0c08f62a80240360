#pragma once

#include <QRect>

// Whether the pages are drawn at double scale. The setting UiScale forces
// it (1 single, 2 double); any other value lets the primary screen decide:
// double once either side spans more than 2000 pixels.
namespace UiScale {

bool is_double_scale(int ui_scale, const QRect& primary_screen);

} // namespace UiScale
