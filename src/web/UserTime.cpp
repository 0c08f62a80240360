#include "web/UserTime.h"

namespace UserTime {
namespace {
// Main thread only, like every window call.
quint32 now = 0;
} // namespace

quint32 current()
{
    return now;
}

Scope::Scope(quint32 time) : previous(now)
{
    now = time;
}

Scope::~Scope()
{
    now = previous;
}

} // namespace UserTime
