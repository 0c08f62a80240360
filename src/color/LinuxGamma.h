#pragma once

#include <cstdint>
#include <string>
#include <vector>
#include <xcb/randr.h>
#include <xcb/xcb.h>

#include "color/IGamma.h"

struct KeptCrtcRamps;

struct randr_crtc_state_t
{
    unsigned int crtc = 0;
    unsigned int ramp_size = 0;
    uint16_t* saved_ramps = nullptr; // red, green, blue; ramp_size entries each
};

struct randr_state_t
{
    xcb_connection_t* conn = nullptr;
    xcb_screen_t* screen = nullptr;
    int preferred_screen = 0;
    int preserve = 1;
    int screen_num = -1;
    int crtc_num = -1;
    unsigned int crtc_count = 0;
    randr_crtc_state_t* crtcs = nullptr;
};

// Gamma ramps through the RandR extension of X11 over xcb. Every write waits
// for the server's answer.
class LinuxGamma : public IGamma
{
public:
    // `display_name` null means $DISPLAY.
    explicit LinuxGamma(const char* display_name = nullptr);
    ~LinuxGamma() override;

    // Connects (again: a second call closes the first connection) and checks
    // for RandR 1.3.
    void init() override;
    int start() override;
    int reset() override;
    int restore() override;
    int get_screen_count() override;
    int set_temperature(const ColorSettings* settings, std::vector<int> ignored, int monitor) override;
    bool is_connected() const override;

    int set_temperature_for_display(randr_state_t* state, int crtc_index, const ColorSettings* settings);
    int restore_monitor_colors(int crtc_index);

    randr_state_t* randr_state() const { return state; }

    // Where this backend keeps the ramps it found, for a later run to repair
    // a crash; empty before a successful start().
    const std::string& crash_file_path() const { return crash_path; }

private:
    void free_crtcs();
    void disconnect();
    int write_crtc(unsigned int crtc, unsigned int size, const uint16_t* block);
    void recover_after_crash();
    void keep_ramps_for_recovery();
    bool take_saved_ramps_from(const std::vector<KeptCrtcRamps>& kept);

    // Held for as long as this backend keeps the file: a second instance on
    // the same display sees a live owner, not a crash.
    int owner_lock_fd = -1;

    randr_state_t* state;
    std::string display;
    bool display_given;
    std::string crash_path;
    bool owns_crash_file = false;
};
