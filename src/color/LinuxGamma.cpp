#include "color/LinuxGamma.h"

#include "base/TickPath.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <time.h>
#include <unistd.h>

#include "color/ColorRamp.h"
#include "color/CrtcRampBuilder.h"
#include "color/RampCrashFile.h"

namespace {

void report_error(const char* request, const xcb_generic_error_t* error)
{
    fprintf(stderr, "`%s' returned error %d\n", request, error ? static_cast<int>(error->error_code) : -1);
}

// OVRA_TRACE_GAMMA_WRITES names a file that gets the monotonic time of each
// write to a CRTC, one a line: benchmarks time fades against other work with
// it, without a tracer that would slow the writes down.
FILE* write_log()
{
    static FILE* const log = [] {
        const char* path = getenv("OVRA_TRACE_GAMMA_WRITES");
        return path && *path ? fopen(path, "ae") : nullptr;
    }();
    return log;
}

OVRA_TICK void log_write()
{
    FILE* log = write_log();
    if (!log)
        return;
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    fprintf(log, "%lld.%09ld\n", static_cast<long long>(now.tv_sec), now.tv_nsec);
    fflush(log);
}

} // namespace

LinuxGamma::LinuxGamma(const char* display_name)
    : state(new randr_state_t)
    , display(display_name ? display_name : "")
    , display_given(display_name != nullptr)
{
    init();
}

LinuxGamma::~LinuxGamma()
{
    release_crash_file();
    free_crtcs();
    disconnect();
    delete state;
}

void LinuxGamma::release_crash_file()
{
    close_crash_file();
    if (owns_crash_file)
        RampCrashFile(QString::fromStdString(crash_path)).remove();
    owns_crash_file = false;
    if (owner_lock_fd >= 0) {
        // The lock file goes with the last owner; a second instance still
        // holding it open keeps its own descriptor.
        unlink((crash_path + ".lock").c_str());
        close(owner_lock_fd);
    }
    owner_lock_fd = -1;
}

void LinuxGamma::free_crtcs()
{
    if (state->crtcs) {
        for (unsigned int i = 0; i < state->crtc_count; ++i) {
            free(state->crtcs[i].saved_ramps);
            free(state->crtcs[i].block);
        }
        free(state->crtcs);
    }
    state->crtcs = nullptr;
    state->crtc_count = 0;
}

void LinuxGamma::disconnect()
{
    if (state->conn)
        xcb_disconnect(state->conn);
    state->conn = nullptr;
    state->screen = nullptr;
}

void LinuxGamma::init()
{
    // A second init replaces the first connection; the CRTCs it read belong
    // to that connection and go with it.
    free_crtcs();
    disconnect();
    state->screen_num = -1;
    state->crtc_num = -1;
    state->preserve = preserve_gamma ? 1 : 0;

    state->conn = xcb_connect(display_given ? display.c_str() : nullptr, &state->preferred_screen);

    xcb_generic_error_t* error = nullptr;
    xcb_randr_query_version_cookie_t cookie = xcb_randr_query_version(state->conn, 1, 3);
    xcb_randr_query_version_reply_t* reply = xcb_randr_query_version_reply(state->conn, cookie, &error);
    if (error || !reply) {
        report_error("RANDR Query Version", error);
        free(error);
        free(reply);
        disconnect();
        return;
    }
    if (reply->major_version != 1 || reply->minor_version < 3) {
        fprintf(stderr, "Unsupported RANDR version (%u.%u)\n", reply->major_version, reply->minor_version);
        free(reply);
        disconnect();
        return;
    }
    free(reply);
}

bool LinuxGamma::is_connected() const
{
    return state->conn != nullptr && xcb_connection_has_error(state->conn) == 0;
}

int LinuxGamma::start()
{
    // init has already said why there is no connection.
    if (!state->conn)
        return -1;
    free_crtcs();

    const int screen_num = state->screen_num < 0 ? state->preferred_screen : state->screen_num;
    xcb_screen_iterator_t iter = xcb_setup_roots_iterator(xcb_get_setup(state->conn));
    state->screen = nullptr;
    for (int i = 0; iter.rem > 0; ++i) {
        if (i == screen_num) {
            state->screen = iter.data;
            break;
        }
        xcb_screen_next(&iter);
    }
    if (!state->screen) {
        fprintf(stderr, "Screen %i could not be found.\n", screen_num);
        return -1;
    }

    xcb_generic_error_t* error = nullptr;
    xcb_randr_get_screen_resources_current_reply_t* resources = xcb_randr_get_screen_resources_current_reply(
        state->conn, xcb_randr_get_screen_resources_current(state->conn, state->screen->root), &error);
    if (error || !resources) {
        report_error("RANDR Get Screen Resources Current", error);
        free(error);
        free(resources);
        return -1;
    }

    const unsigned int count = static_cast<unsigned int>(resources->num_crtcs);
    state->crtcs = static_cast<randr_crtc_state_t*>(calloc(count ? count : 1, sizeof(randr_crtc_state_t)));
    if (!state->crtcs) {
        perror("malloc");
        state->crtc_count = 0;
        free(resources);
        return -1;
    }
    state->crtc_count = count;
    const xcb_randr_crtc_t* ids = xcb_randr_get_screen_resources_current_crtcs(resources);
    for (unsigned int i = 0; i < count; ++i)
        state->crtcs[i].crtc = ids[i];
    free(resources);

    for (unsigned int i = 0; i < count; ++i) {
        randr_crtc_state_t& crtc = state->crtcs[i];
        xcb_randr_get_crtc_gamma_size_reply_t* size_reply = xcb_randr_get_crtc_gamma_size_reply(
            state->conn, xcb_randr_get_crtc_gamma_size(state->conn, crtc.crtc), &error);
        if (error || !size_reply) {
            report_error("RANDR Get CRTC Gamma Size", error);
            free(error);
            free(size_reply);
            return -1;
        }
        crtc.ramp_size = size_reply->size;
        free(size_reply);
        if (crtc.ramp_size == 0) {
            fprintf(stderr, "Gamma ramp size too small: %i\n", static_cast<int>(crtc.ramp_size));
            return -1;
        }

        xcb_randr_get_crtc_gamma_reply_t* gamma_reply = xcb_randr_get_crtc_gamma_reply(
            state->conn, xcb_randr_get_crtc_gamma(state->conn, crtc.crtc), &error);
        if (error || !gamma_reply) {
            report_error("RANDR Get CRTC Gamma", error);
            free(error);
            free(gamma_reply);
            return -1;
        }
        crtc.saved_ramps = static_cast<uint16_t*>(malloc(3 * crtc.ramp_size * sizeof(uint16_t)));
        if (!crtc.saved_ramps) {
            perror("malloc");
            free(gamma_reply);
            return -1;
        }
        const size_t bytes = crtc.ramp_size * sizeof(uint16_t);
        memcpy(crtc.saved_ramps, xcb_randr_get_crtc_gamma_red(gamma_reply), bytes);
        memcpy(crtc.saved_ramps + crtc.ramp_size, xcb_randr_get_crtc_gamma_green(gamma_reply), bytes);
        memcpy(crtc.saved_ramps + 2 * crtc.ramp_size, xcb_randr_get_crtc_gamma_blue(gamma_reply), bytes);
        free(gamma_reply);
    }

    // A file this backend wrote itself on an earlier start is no sign of a
    // crash; it is only brought up to date.
    if (!owns_crash_file)
        recover_after_crash();
    ++ramp_generation;
    for (unsigned int i = 0; i < count; ++i)
        state->crtcs[i].last_written =
            RampCrashFile::fingerprint(state->crtcs[i].saved_ramps, state->crtcs[i].ramp_size);
    keep_ramps_for_recovery();
    return 0;
}

// A file for this display with the same CRTCs means an earlier run died with
// its tint on the screen: what the server holds now is that tint, and the
// file holds what was there before it.
void LinuxGamma::recover_after_crash()
{
    const char* name = display_given ? display.c_str() : getenv("DISPLAY");
    RampCrashFile file(RampCrashFile::path_for_display(name));
    crash_path = file.path().toStdString();

    // Another instance that is running on this display holds the lock. Its
    // file is no crash: it holds the ramps from before that instance's tint,
    // which are the ones to keep here too, or the tints would compound.
    const std::string lock_path = crash_path + ".lock";
    owner_lock_fd = open(lock_path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    const bool other_owner_alive =
        owner_lock_fd >= 0 && flock(owner_lock_fd, LOCK_EX | LOCK_NB) != 0;
    if (other_owner_alive) {
        close(owner_lock_fd);
        owner_lock_fd = -1;
    } else if (owner_lock_fd < 0) {
        fprintf(stderr, "Unable to keep the original ramps in %s\n", crash_path.c_str());
    }

    std::vector<KeptCrtcRamps> kept;
    QString reason;
    switch (file.load(&kept, &reason)) {
    case RampCrashFile::LoadResult::Missing:
        return;
    case RampCrashFile::LoadResult::Invalid:
        fprintf(stderr, "Ignoring saved ramps in %s: %s\n", crash_path.c_str(), reason.toLocal8Bit().constData());
        return;
    case RampCrashFile::LoadResult::Loaded:
        break;
    }
    if (!same_crtcs(kept)) {
        fprintf(stderr, "Ignoring saved ramps in %s: they belong to other CRTCs\n", crash_path.c_str());
        return;
    }
    if (other_owner_alive) {
        take_saved_ramps_from(kept);
        return;
    }
    // Only a CRTC that still shows what the dead run wrote holds its tint;
    // anything else was reset since (a new server, another program), and
    // the originals in the file would tint it instead of repairing it.
    int restored = 0, reset = 0;
    for (unsigned int i = 0; i < state->crtc_count; ++i) {
        randr_crtc_state_t& crtc = state->crtcs[i];
        if (RampCrashFile::fingerprint(crtc.saved_ramps, crtc.ramp_size) != kept[i].last_written) {
            ++reset;
            continue;
        }
        memcpy(crtc.saved_ramps, kept[i].ramps.data(), 3 * crtc.ramp_size * sizeof(uint16_t));
        if (write_crtc(crtc.crtc, crtc.ramp_size, crtc.saved_ramps) != 0)
            fprintf(stderr, "Unable to restore CRTC %i\n", static_cast<int>(i));
        ++restored;
    }
    if (restored > 0)
        fprintf(stderr, "Restored the ramps left tinted by an earlier run\n");
    if (reset > 0)
        fprintf(stderr, "Dropped the saved ramps of %d CRTC(s) in %s: the screen was reset since\n",
                reset, crash_path.c_str());
}

bool LinuxGamma::same_crtcs(const std::vector<KeptCrtcRamps>& kept) const
{
    bool same = kept.size() == state->crtc_count;
    for (unsigned int i = 0; same && i < state->crtc_count; ++i)
        same = kept[i].crtc == state->crtcs[i].crtc && kept[i].ramp_size == state->crtcs[i].ramp_size;
    return same;
}

void LinuxGamma::take_saved_ramps_from(const std::vector<KeptCrtcRamps>& kept)
{
    for (unsigned int i = 0; i < state->crtc_count; ++i) {
        randr_crtc_state_t& crtc = state->crtcs[i];
        memcpy(crtc.saved_ramps, kept[i].ramps.data(), 3 * crtc.ramp_size * sizeof(uint16_t));
    }
}

std::vector<KeptCrtcRamps> LinuxGamma::kept_ramps() const
{
    std::vector<KeptCrtcRamps> kept(state->crtc_count);
    for (unsigned int i = 0; i < state->crtc_count; ++i) {
        kept[i].crtc = state->crtcs[i].crtc;
        kept[i].ramp_size = state->crtcs[i].ramp_size;
        kept[i].ramps.assign(state->crtcs[i].saved_ramps, state->crtcs[i].saved_ramps + 3 * state->crtcs[i].ramp_size);
        kept[i].last_written = state->crtcs[i].last_written;
    }
    return kept;
}

void LinuxGamma::keep_ramps_for_recovery()
{
    // The file belongs to whoever holds the lock.
    if (owner_lock_fd < 0)
        return;
    close_crash_file();
    if (RampCrashFile(QString::fromStdString(crash_path)).write(kept_ramps())) {
        owns_crash_file = true;
        last_written_moved = false;
        // Kept open for the fingerprints, which follow every change of tint.
        crash_fd = open(crash_path.c_str(), O_WRONLY | O_CLOEXEC);
    } else {
        fprintf(stderr, "Unable to keep the original ramps in %s\n", crash_path.c_str());
    }
}

void LinuxGamma::close_crash_file()
{
    if (crash_fd >= 0)
        close(crash_fd);
    crash_fd = -1;
}

int LinuxGamma::get_screen_count()
{
    return static_cast<int>(state->crtc_count);
}

int LinuxGamma::write_crtc(unsigned int crtc, unsigned int size, const uint16_t* block)
{
    xcb_void_cookie_t cookie = xcb_randr_set_crtc_gamma_checked(state->conn, crtc, static_cast<uint16_t>(size),
                                                                 block, block + size, block + 2 * size);
    xcb_generic_error_t* error = xcb_request_check(state->conn, cookie);
    if (error || xcb_connection_has_error(state->conn)) {
        report_error("RANDR Set CRTC Gamma", error);
        free(error);
        return -1;
    }
    log_write();
    return 0;
}

// Every second the tick writes again what the screen already shows, to
// repair it after a suspend or another program. Such a repeat goes out
// without waiting for the server's answer: waiting would wake the program a
// second time each second, and the answer matters only when it is a refusal,
// which comes back as an error that the next write collects. A change of
// ramps, a restore and the first write after a refusal still wait.
OVRA_TICK int LinuxGamma::write_block(randr_crtc_state_t& crtc, const uint16_t* block, uint64_t fingerprint, bool may_repeat)
{
    if (may_repeat && crtc.last_write_confirmed && crtc.last_written == fingerprint)
        return repeat_crtc(crtc.crtc, crtc.ramp_size, block);
    const int result = write_crtc(crtc.crtc, crtc.ramp_size, block);
    crtc.last_write_confirmed = result == 0;
    if (result == 0 && crtc.last_written != fingerprint) {
        crtc.last_written = fingerprint;
        last_written_moved = true;
    }
    return result;
}

OVRA_TICK int LinuxGamma::repeat_crtc(unsigned int crtc, unsigned int size, const uint16_t* block)
{
    xcb_randr_set_crtc_gamma(state->conn, crtc, static_cast<uint16_t>(size), block, block + size, block + 2 * size);
    if (xcb_flush(state->conn) <= 0) {
        report_error("RANDR Set CRTC Gamma", nullptr);
        return -1;
    }
    log_write();
    return 0;
}

OVRA_TICK int LinuxGamma::collect_late_errors()
{
    if (!state->conn || state->crtc_count == 0)
        return 0;
    int result = 0;
    while (xcb_generic_event_t* event = xcb_poll_for_event(state->conn)) {
        // Nothing is selected on this connection: all that comes are errors.
        if (event->response_type == 0) {
            report_error("RANDR Set CRTC Gamma", reinterpret_cast<xcb_generic_error_t*>(event));
            result = -1;
        }
        free(event);
    }
    if (xcb_connection_has_error(state->conn)) {
        report_error("RANDR Set CRTC Gamma", nullptr);
        result = -1;
    }
    if (result != 0) {
        // Which repeat was refused is not worth tracing: the next write to
        // every CRTC waits for its answer again.
        for (unsigned int i = 0; i < state->crtc_count; ++i)
            state->crtcs[i].last_write_confirmed = false;
    }
    return result;
}

// The file follows the screen only when what was written changed: once a
// second the same ramps are written again, and that needs no file.
OVRA_TICK void LinuxGamma::keep_last_written()
{
    if (!last_written_moved || !owns_crash_file)
        return;
    if (crash_fd >= 0 && RampCrashFile::write_in_place(crash_fd, kept_ramps()))
        last_written_moved = false;
    else
        keep_ramps_for_recovery();
}

OVRA_TICK int LinuxGamma::set_temperature(const ColorSettings* settings, std::vector<int> ignored, int monitor)
{
    collect_late_errors();
    const int result = write_temperature(settings, ignored);
    keep_last_written();
    return result;
}

OVRA_TICK int LinuxGamma::write_temperature(const ColorSettings* settings, const std::vector<int>& ignored)
{
    if (state->crtc_num >= 0)
        return set_temperature_for_display(state, state->crtc_num, settings);
    if (state->crtc_count == 0)
        return 0;

    int result = 0;
    for (unsigned int i = 0; i < state->crtc_count; ++i) {
        const int number = static_cast<int>(i) + 1;
        bool is_ignored = false;
        for (int entry : ignored) {
            if (entry == number) {
                is_ignored = true;
                restore_monitor_colors(static_cast<int>(i));
            }
        }
        if (!is_ignored)
            result = set_temperature_for_display(state, static_cast<int>(i), settings);
    }
    return result;
}

OVRA_TICK int LinuxGamma::set_temperature_for_display(randr_state_t* state, int crtc_index, const ColorSettings* settings)
{
    if (!CrtcRampBuilder::reaches_display(settings))
        return -1;

    if (crtc_index < 0 || static_cast<unsigned int>(crtc_index) >= state->crtc_count) {
        fprintf(stderr, "CRTC %d does not exist. ", state->crtc_num);
        if (state->crtc_count < 2)
            fprintf(stderr, "Only CRTC 0 exists.\n");
        else
            fprintf(stderr, "Valid CRTCs are [0-%d].\n", static_cast<int>(state->crtc_count) - 1);
        return -1;
    }

    randr_crtc_state_t& crtc = state->crtcs[crtc_index];
    RampKey key;
    key.temperature = settings->temperature;
    key.brightness = settings->brightness;
    for (int c = 0; c < 3; ++c)
        key.gamma[c] = settings->gamma[c];
    key.inverted = use_inverted_gamma;
    key.preserve = state->preserve;
    key.generation = ramp_generation;
    if (!crtc.block || !(crtc.block_key == key)) {
        if (!crtc.block)
            crtc.block = static_cast<uint16_t*>(malloc(3 * crtc.ramp_size * sizeof(uint16_t)));
        if (!crtc.block) {
            perror("malloc");
            return -1;
        }
        CrtcRampBuilder::build(color_ramp, settings, state->preserve != 0, use_inverted_gamma, crtc.saved_ramps,
                               crtc.ramp_size, crtc.block);
        crtc.block_key = key;
        crtc.block_fingerprint = RampCrashFile::fingerprint(crtc.block, crtc.ramp_size);
    }
    return write_block(crtc, crtc.block, crtc.block_fingerprint, true);
}

int LinuxGamma::restore_monitor_colors(int crtc_index)
{
    if (crtc_index < 0 || static_cast<unsigned int>(crtc_index) >= state->crtc_count)
        return -1;
    ColorSettings neutral;
    neutral.temperature = 6500;
    neutral.gamma[0] = neutral.gamma[1] = neutral.gamma[2] = 1.0f;
    neutral.brightness = 1.0f;
    return set_temperature_for_display(state, crtc_index, &neutral);
}

int LinuxGamma::restore()
{
    int result = 0;
    for (unsigned int i = 0; i < state->crtc_count; ++i) {
        randr_crtc_state_t& crtc = state->crtcs[i];
        if (!crtc.saved_ramps)
            continue;
        const uint64_t fingerprint = RampCrashFile::fingerprint(crtc.saved_ramps, crtc.ramp_size);
        if (write_block(crtc, crtc.saved_ramps, fingerprint, false) != 0) {
            fprintf(stderr, "Unable to restore CRTC %i\n", static_cast<int>(i));
            result = -1;
        }
    }
    keep_last_written();
    return result;
}

int LinuxGamma::reset()
{
    for (unsigned int i = 0; i < state->crtc_count; ++i) {
        randr_crtc_state_t& crtc = state->crtcs[i];
        if (crtc.ramp_size == 0)
            continue;
        if (!crtc.saved_ramps) {
            crtc.saved_ramps = static_cast<uint16_t*>(malloc(3 * crtc.ramp_size * sizeof(uint16_t)));
            if (!crtc.saved_ramps) {
                perror("malloc");
                return -1;
            }
        }
        for (int c = 0; c < 3; ++c)
            CrtcRampBuilder::fill_linear(crtc.saved_ramps + c * crtc.ramp_size, crtc.ramp_size);
    }
    ++ramp_generation;
    return 0;
}
