#include "crtc_ramps.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

void report_error(const char* request, const xcb_generic_error_t* error)
{
    fprintf(stderr, "`%s' returned error %d\n", request, error ? static_cast<int>(error->error_code) : -1);
}

} // namespace

CrtcRamps::~CrtcRamps()
{
    if (conn)
        xcb_disconnect(conn);
}

int CrtcRamps::open(const char* display)
{
    if (conn)
        xcb_disconnect(conn);
    crtcs.clear();
    int screen_number = 0;
    conn = xcb_connect(display, &screen_number);
    if (xcb_connection_has_error(conn)) {
        fprintf(stderr, "Cannot connect to the X server\n");
        return -1;
    }
    xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(conn));
    for (int i = 0; i < screen_number && it.rem > 0; ++i)
        xcb_screen_next(&it);
    if (it.rem <= 0) {
        fprintf(stderr, "Screen %d could not be found.\n", screen_number);
        return -1;
    }
    xcb_generic_error_t* error = nullptr;
    auto* resources = xcb_randr_get_screen_resources_current_reply(
        conn, xcb_randr_get_screen_resources_current(conn, it.data->root), &error);
    if (error || !resources) {
        report_error("RANDR Get Screen Resources Current", error);
        free(error);
        free(resources);
        return -1;
    }
    const xcb_randr_crtc_t* ids = xcb_randr_get_screen_resources_current_crtcs(resources);
    crtcs.resize(xcb_randr_get_screen_resources_current_crtcs_length(resources));
    for (size_t i = 0; i < crtcs.size(); ++i)
        crtcs[i].id = ids[i];
    free(resources);
    return read();
}

int CrtcRamps::read()
{
    for (Crtc& crtc : crtcs) {
        xcb_generic_error_t* error = nullptr;
        auto* reply = xcb_randr_get_crtc_gamma_reply(conn, xcb_randr_get_crtc_gamma(conn, crtc.id), &error);
        if (error || !reply) {
            report_error("RANDR Get CRTC Gamma", error);
            free(error);
            free(reply);
            return -1;
        }
        crtc.size = reply->size;
        crtc.ramps.resize(3 * static_cast<size_t>(crtc.size));
        const size_t bytes = crtc.size * sizeof(uint16_t);
        memcpy(crtc.ramps.data(), xcb_randr_get_crtc_gamma_red(reply), bytes);
        memcpy(crtc.ramps.data() + crtc.size, xcb_randr_get_crtc_gamma_green(reply), bytes);
        memcpy(crtc.ramps.data() + 2 * crtc.size, xcb_randr_get_crtc_gamma_blue(reply), bytes);
        free(reply);
    }
    return 0;
}

int CrtcRamps::write(bool wait_for_answer) const
{
    for (const Crtc& crtc : crtcs) {
        if (crtc.size == 0)
            continue;
        const uint16_t* block = crtc.ramps.data();
        if (!wait_for_answer) {
            xcb_randr_set_crtc_gamma(conn, crtc.id, crtc.size, block, block + crtc.size, block + 2 * crtc.size);
            continue;
        }
        xcb_generic_error_t* error = xcb_request_check(
            conn, xcb_randr_set_crtc_gamma_checked(conn, crtc.id, crtc.size, block, block + crtc.size,
                                                   block + 2 * crtc.size));
        if (error || xcb_connection_has_error(conn)) {
            report_error("RANDR Set CRTC Gamma", error);
            free(error);
            return -1;
        }
    }
    if (!wait_for_answer && (xcb_flush(conn) <= 0 || xcb_connection_has_error(conn))) {
        report_error("RANDR Set CRTC Gamma", nullptr);
        return -1;
    }
    return 0;
}
