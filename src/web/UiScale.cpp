#include "web/UiScale.h"

namespace UiScale {

bool is_double_scale(int ui_scale, const QRect& primary_screen)
{
    if (ui_scale == 1)
        return false;
    if (ui_scale == 2)
        return true;
    // QRect's right and bottom are inclusive: 2000 pixels give 1999.
    return primary_screen.right() - primary_screen.left() > 1999
           || primary_screen.bottom() - primary_screen.top() > 1999;
}

} // namespace UiScale
