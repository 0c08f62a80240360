#pragma once

// How long the user has left mouse and keyboard alone, as the X server's
// screen saver extension counts it. One request a second, when asked.
class IdleTime
{
public:
    IdleTime() = default;
    ~IdleTime();
    IdleTime(const IdleTime&) = delete;
    IdleTime& operator=(const IdleTime&) = delete;

    // Milliseconds since the last input; -1 when the server cannot tell
    // (no X display, or no extension), which is said once on stderr.
    long idle_msecs();

    // Seconds without input after which the work timer stops: 120, unless
    // a test shortens it through OVRA_TEST_IDLE_SECONDS.
    static int threshold_seconds();

private:
    bool probe();

    void* display = nullptr;
    void* info = nullptr;
    bool probed = false;
};
