/* Holds a key combination the way another program's global shortcut does: a
 * passive grab on the root window, kept until standard input closes.
 * Usage: ovra-hold-key <keysym name> <modifier mask>
 * Prints "held" once the server granted the grab; exits 1 when it refused. */
#include <X11/Xlib.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

static int refused;

static int note_error(Display* display, XErrorEvent* error)
{
    (void)display;
    (void)error;
    refused = 1;
    return 0;
}

int main(int argc, char** argv)
{
    if (argc != 3) {
        fprintf(stderr, "usage: %s <keysym name> <modifier mask>\n", argv[0]);
        return 2;
    }
    Display* display = XOpenDisplay(NULL);
    if (!display) {
        fprintf(stderr, "cannot open display\n");
        return 1;
    }
    KeySym symbol = XStringToKeysym(argv[1]);
    KeyCode code = symbol == NoSymbol ? 0 : XKeysymToKeycode(display, symbol);
    if (!code) {
        fprintf(stderr, "no key for %s\n", argv[1]);
        return 1;
    }
    XSetErrorHandler(note_error);
    XGrabKey(display, code, (unsigned)strtoul(argv[2], NULL, 0), DefaultRootWindow(display), True,
             GrabModeAsync, GrabModeAsync);
    XSync(display, False);
    if (refused) {
        fprintf(stderr, "the grab was refused\n");
        return 1;
    }
    printf("held\n");
    fflush(stdout);
    char buffer[64];
    while (read(STDIN_FILENO, buffer, sizeof buffer) > 0) {
    }
    XCloseDisplay(display);
    return 0;
}
