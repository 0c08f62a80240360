/* Holds a key combination as another program's global shortcut does: a
 * passive grab on the root window, kept until standard input closes. Prints
 * "held" once granted; exits 1 when refused.
 * Usage: ovra-hold-key <keysym name> <modifier mask> */
#include <X11/Xlib.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

static int refused;

static int note_error(Display* display, XErrorEvent* error)
{
    (void)display;
    (void)error;
    return refused = 1;
}

int main(int argc, char** argv)
{
    Display* display = argc == 3 ? XOpenDisplay(NULL) : NULL;
    KeyCode code = display ? XKeysymToKeycode(display, XStringToKeysym(argv[1])) : 0;
    if (!code) {
        fprintf(stderr, "usage: %s <keysym name> <modifier mask>, with a display\n", argv[0]);
        return 2;
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
    return 0;
}
