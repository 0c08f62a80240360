#pragma once

namespace DisplayProbe {
// True when the X server named by DISPLAY answers. Otherwise writes one line
// to standard error saying why.
bool display_reachable();
}
