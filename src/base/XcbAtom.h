#pragma once

#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

// An atom by name, XCB_ATOM_NONE when the server does not answer. Header
// only: the resident program and the window host both ask for atoms.
inline xcb_atom_t xcb_atom(xcb_connection_t* c, const char* name)
{
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, uint16_t(std::strlen(name)), name), nullptr);
    const xcb_atom_t result = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}
