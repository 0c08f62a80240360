#pragma once

// Marks a function that runs in every second's tick. The compiler puts all
// of them in one stretch of code, so that the tick touches a few pages of
// it instead of one page per source file. An idle program finds its caches
// cold at each wake-up, and on a virtual machine every further page the
// tick touches costs microseconds: measured, more than the tick's own work.
#define OVRA_TICK __attribute__((hot))
