#pragma once

#include <cstdint>
#include <vector>
#include <xcb/randr.h>
#include <xcb/xcb.h>

// The ramps of every CRTC of one X screen, taken from the server once and
// written back unchanged: the least any program that keeps a tint on the
// screen has to do. A write waits for the server's answer unless told not
// to; the product's once-a-second repeat does not wait.
class CrtcRamps
{
public:
    CrtcRamps() = default;
    ~CrtcRamps();
    CrtcRamps(const CrtcRamps&) = delete;
    CrtcRamps& operator=(const CrtcRamps&) = delete;

    // Connects to `display` ($DISPLAY when null) and reads the CRTCs and the
    // ramps they hold now. 0 or -1.
    int open(const char* display = nullptr);
    // Takes the ramps the server holds now, replacing those read before.
    int read();
    // One SetCrtcGamma a CRTC with the ramps last read, each checked, or
    // all sent at once without waiting. 0 or -1.
    int write(bool wait_for_answer = true) const;

    int crtc_count() const { return static_cast<int>(crtcs.size()); }

private:
    struct Crtc
    {
        xcb_randr_crtc_t id = 0;
        uint16_t size = 0;
        std::vector<uint16_t> ramps; // red, green, blue; `size` entries each
    };

    xcb_connection_t* conn = nullptr;
    std::vector<Crtc> crtcs;
};
