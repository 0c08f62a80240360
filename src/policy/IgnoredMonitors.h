#pragma once

#include <vector>

// The monitors that the tint leaves alone, numbered from 1.
namespace IgnoredMonitors {

// Puts the monitor on the list or takes every mention of it off. Returns
// whether the list changed.
bool set_ignored(std::vector<int>& ignored, int monitor, bool ignore);

} // namespace IgnoredMonitors
