#include "policy/OvraModes.h"

namespace OvraModes {

int next_mode(int stored)
{
    const int next = stored + 1;
    return next >= 4 ? AUTOMATIC : next;
}

} // namespace OvraModes
