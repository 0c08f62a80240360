#include "policy/IgnoredMonitors.h"

#include <algorithm>

namespace IgnoredMonitors {

bool set_ignored(std::vector<int>& ignored, int monitor, bool ignore)
{
    const auto found = std::find(ignored.begin(), ignored.end(), monitor);
    if (ignore) {
        if (found != ignored.end())
            return false;
        ignored.push_back(monitor);
        return true;
    }
    if (found == ignored.end())
        return false;
    // A hand-edited store may name a monitor twice.
    ignored.erase(std::remove(ignored.begin(), ignored.end(), monitor), ignored.end());
    return true;
}

} // namespace IgnoredMonitors
