#pragma once

class QObject;

// The program's rarely used doors, a Unix signal that arrives and a second
// launch that knocks, are waited on by a thread of their own. The main
// thread, which wakes every second for good, then polls one descriptor
// instead of three; measured on a virtual machine, every descriptor in that
// poll costs about as much as the tick's own work. What a door hears reaches
// the main thread as a queued call.
namespace DoorThread {
// Moves `door` and its children into the thread, which starts on first use.
void take(QObject* door);
// Deletes `door` in the thread that waits on it; nothing it sends after
// this arrives.
void close(QObject* door);
// Ends the thread; call it once every door is closed.
void stop();
} // namespace DoorThread
