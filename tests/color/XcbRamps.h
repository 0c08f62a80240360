#pragma once

// A second, independent view of the X server's ramps for the tests: what the
// screen really holds, read and written with plain xcb.

#include <cstdint>
#include <cstdlib>
#include <vector>
#include <xcb/randr.h>
#include <xcb/xcb.h>

struct CrtcRamps
{
    unsigned int size = 0;
    std::vector<uint16_t> red, green, blue;
    bool operator==(const CrtcRamps& o) const
    {
        return size == o.size && red == o.red && green == o.green && blue == o.blue;
    }

    // Entry j = f(j, size) on all three channels.
    template <typename F>
    static CrtcRamps of(unsigned int size, F f)
    {
        CrtcRamps r;
        r.size = size;
        for (unsigned int j = 0; j < size; ++j) {
            r.red.push_back(f(j, size));
            r.green.push_back(r.red.back());
            r.blue.push_back(r.red.back());
        }
        return r;
    }
};

class XcbRamps
{
public:
    explicit XcbRamps(const char* display = nullptr)
    {
        int screen_number = 0;
        conn = xcb_connect(display, &screen_number);
        if (xcb_connection_has_error(conn))
            return;
        xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(conn));
        for (int i = 0; i < screen_number && it.rem; ++i)
            xcb_screen_next(&it);
        if (!it.rem)
            return;
        auto* resources = xcb_randr_get_screen_resources_current_reply(
            conn, xcb_randr_get_screen_resources_current(conn, it.data->root), nullptr);
        if (!resources)
            return;
        const xcb_randr_crtc_t* ids = xcb_randr_get_screen_resources_current_crtcs(resources);
        crtcs.assign(ids, ids + xcb_randr_get_screen_resources_current_crtcs_length(resources));
        free(resources);
        ok = true;
    }
    ~XcbRamps() { xcb_disconnect(conn); }
    XcbRamps(const XcbRamps&) = delete;
    XcbRamps& operator=(const XcbRamps&) = delete;

    bool connected() const { return ok; }
    int count() const { return static_cast<int>(crtcs.size()); }
    uint32_t crtc_id(int index) const { return crtcs[index]; }

    CrtcRamps get(int index) const
    {
        CrtcRamps r;
        auto* reply = xcb_randr_get_crtc_gamma_reply(conn, xcb_randr_get_crtc_gamma(conn, crtcs[index]), nullptr);
        if (!reply)
            return r;
        r.size = reply->size;
        r.red.assign(xcb_randr_get_crtc_gamma_red(reply), xcb_randr_get_crtc_gamma_red(reply) + r.size);
        r.green.assign(xcb_randr_get_crtc_gamma_green(reply), xcb_randr_get_crtc_gamma_green(reply) + r.size);
        r.blue.assign(xcb_randr_get_crtc_gamma_blue(reply), xcb_randr_get_crtc_gamma_blue(reply) + r.size);
        free(reply);
        return r;
    }

    bool set(int index, const CrtcRamps& r) const
    {
        xcb_generic_error_t* error = xcb_request_check(
            conn, xcb_randr_set_crtc_gamma_checked(conn, crtcs[index], static_cast<uint16_t>(r.size), r.red.data(),
                                                   r.green.data(), r.blue.data()));
        free(error);
        return error == nullptr;
    }

    unsigned int size(int index) const
    {
        auto* reply =
            xcb_randr_get_crtc_gamma_size_reply(conn, xcb_randr_get_crtc_gamma_size(conn, crtcs[index]), nullptr);
        unsigned int s = reply ? reply->size : 0;
        free(reply);
        return s;
    }

    template <typename F>
    CrtcRamps curve(int index, F f) const
    {
        return CrtcRamps::of(size(index), f);
    }

    template <typename F>
    bool set_curve(int index, F f) const
    {
        return set(index, curve(index, f));
    }

private:
    xcb_connection_t* conn = nullptr;
    std::vector<xcb_randr_crtc_t> crtcs;
    bool ok = false;
};
