#pragma once

#include <cstdint>
#include <string>
#include <vector>
#include <xcb/randr.h>
#include <xcb/xcb.h>

#include "color/IGamma.h"

struct KeptCrtcRamps;

// What a built block of ramps was made from.
struct RampKey
{
    int temperature = -1;
    float brightness = 0.0f;
    float gamma[3] = {0.0f, 0.0f, 0.0f};
    bool inverted = false;
    int preserve = 0;
    unsigned int generation = 0;

    bool operator==(const RampKey& other) const
    {
        return temperature == other.temperature && brightness == other.brightness
               && gamma[0] == other.gamma[0] && gamma[1] == other.gamma[1]
               && gamma[2] == other.gamma[2] && inverted == other.inverted
               && preserve == other.preserve && generation == other.generation;
    }
};

struct randr_crtc_state_t
{
    unsigned int crtc = 0;
    unsigned int ramp_size = 0;
    uint16_t* saved_ramps = nullptr; // red, green, blue; ramp_size entries each
    // The block last built for this CRTC, kept because the same values are
    // written again every second.
    uint16_t* block = nullptr;
    RampKey block_key;
    uint64_t block_fingerprint = 0;
    // Fingerprint of what this backend last wrote to the CRTC.
    uint64_t last_written = 0;
    // The server took that write without an error.
    bool last_write_confirmed = false;
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
    // Gives up the file and its lock without writing to the display: for a
    // way out on which the display is gone.
    void release_crash_file() override;

private:
    void free_crtcs();
    void disconnect();
    int write_crtc(unsigned int crtc, unsigned int size, const uint16_t* block);
    // `may_repeat`: a write the tick repeats, which need not wait when the
    // CRTC already shows it.
    int write_block(randr_crtc_state_t& crtc, const uint16_t* block, uint64_t fingerprint, bool may_repeat);
    int repeat_crtc(unsigned int crtc, unsigned int size, const uint16_t* block);
    // Reports refusals of earlier repeats; -1 when there was one, or the
    // connection is gone.
    int collect_late_errors();
    // Brings the file up to date with what was last written, when it moved.
    void keep_last_written();
    void recover_after_crash();
    void keep_ramps_for_recovery();
    std::vector<KeptCrtcRamps> kept_ramps() const;
    void close_crash_file();
    bool same_crtcs(const std::vector<KeptCrtcRamps>& kept) const;
    void take_saved_ramps_from(const std::vector<KeptCrtcRamps>& kept);
    int write_temperature(const ColorSettings* settings, const std::vector<int>& ignored);

    // Held for as long as this backend keeps the file: a second instance on
    // the same display sees a live owner, not a crash.
    int owner_lock_fd = -1;

    randr_state_t* state;
    std::string display;
    bool display_given;
    std::string crash_path;
    bool owns_crash_file = false;
    bool last_written_moved = false;
    int crash_fd = -1;
};
