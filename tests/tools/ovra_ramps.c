/*
 * ovra-ramps: reads and writes the gamma ramps of the CRTCs on $DISPLAY, so
 * that tests can look at the screen the way the X server sees it.
 *
 *   ovra-ramps count           number of CRTCs
 *   ovra-ramps get [crtc]      for each CRTC (or the one given): the ramp size
 *                              on one line, then red, green and blue, one ramp
 *                              a line, values separated by spaces
 *   ovra-ramps linear          every CRTC to entry j = j * 65535 / (size - 1),
 *                              the curve `xrandr --gamma 1:1:1` leaves
 *   ovra-ramps set [crtc]      reads the `get` format from standard input and
 *                              writes it to every CRTC (or the one given)
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <xcb/xcb.h>
#include <xcb/randr.h>

static xcb_connection_t* conn;
static xcb_randr_crtc_t* crtcs;
static int crtc_count;
static xcb_randr_get_screen_resources_current_reply_t* resources;

static int load_crtcs(void)
{
    int screen_number = 0;
    conn = xcb_connect(NULL, &screen_number);
    if (xcb_connection_has_error(conn)) {
        fprintf(stderr, "ovra-ramps: cannot connect to the display\n");
        return -1;
    }
    xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(conn));
    for (int i = 0; i < screen_number && it.rem; ++i)
        xcb_screen_next(&it);
    if (!it.rem) {
        fprintf(stderr, "ovra-ramps: screen %d not found\n", screen_number);
        return -1;
    }
    xcb_generic_error_t* error = NULL;
    resources = xcb_randr_get_screen_resources_current_reply(
        conn, xcb_randr_get_screen_resources_current(conn, it.data->root), &error);
    if (error || !resources) {
        fprintf(stderr, "ovra-ramps: cannot read the screen resources\n");
        free(error);
        return -1;
    }
    crtcs = xcb_randr_get_screen_resources_current_crtcs(resources);
    crtc_count = xcb_randr_get_screen_resources_current_crtcs_length(resources);
    return 0;
}

static int ramp_size(int index)
{
    xcb_generic_error_t* error = NULL;
    xcb_randr_get_crtc_gamma_size_reply_t* reply = xcb_randr_get_crtc_gamma_size_reply(
        conn, xcb_randr_get_crtc_gamma_size(conn, crtcs[index]), &error);
    if (error || !reply) {
        fprintf(stderr, "ovra-ramps: cannot read the ramp size of CRTC %d\n", index);
        free(error);
        return -1;
    }
    int size = reply->size;
    free(reply);
    return size;
}

static void print_ramp(const uint16_t* values, int size)
{
    for (int j = 0; j < size; ++j)
        printf(j ? " %u" : "%u", (unsigned)values[j]);
    printf("\n");
}

static int get_one(int index)
{
    xcb_generic_error_t* error = NULL;
    xcb_randr_get_crtc_gamma_reply_t* reply = xcb_randr_get_crtc_gamma_reply(
        conn, xcb_randr_get_crtc_gamma(conn, crtcs[index]), &error);
    if (error || !reply) {
        fprintf(stderr, "ovra-ramps: cannot read the ramps of CRTC %d\n", index);
        free(error);
        return -1;
    }
    int size = reply->size;
    printf("%d\n", size);
    print_ramp(xcb_randr_get_crtc_gamma_red(reply), size);
    print_ramp(xcb_randr_get_crtc_gamma_green(reply), size);
    print_ramp(xcb_randr_get_crtc_gamma_blue(reply), size);
    free(reply);
    return 0;
}

static int set_one(int index, int size, const uint16_t* r, const uint16_t* g, const uint16_t* b)
{
    xcb_generic_error_t* error = xcb_request_check(
        conn, xcb_randr_set_crtc_gamma_checked(conn, crtcs[index], (uint16_t)size, r, g, b));
    if (error) {
        fprintf(stderr, "ovra-ramps: cannot write the ramps of CRTC %d (error %d)\n", index,
                error->error_code);
        free(error);
        return -1;
    }
    return 0;
}

static int linear_all(void)
{
    for (int i = 0; i < crtc_count; ++i) {
        int size = ramp_size(i);
        if (size <= 0)
            return -1;
        uint16_t* ramp = malloc(sizeof(uint16_t) * (size_t)size);
        if (!ramp)
            return -1;
        for (int j = 0; j < size; ++j)
            ramp[j] = size > 1 ? (uint16_t)((unsigned long)j * 65535UL / (unsigned long)(size - 1)) : 0;
        int rc = set_one(i, size, ramp, ramp, ramp);
        free(ramp);
        if (rc)
            return -1;
    }
    return 0;
}

static int read_values(uint16_t* values, int size)
{
    for (int j = 0; j < size; ++j) {
        unsigned v;
        if (scanf("%u", &v) != 1 || v > 65535)
            return -1;
        values[j] = (uint16_t)v;
    }
    return 0;
}

/* Reads one block in the `get` format and writes it to the CRTCs from
   `first` to `last`. */
static int set_from_stdin(int first, int last)
{
    int size;
    if (scanf("%d", &size) != 1 || size <= 0 || size > 65536) {
        fprintf(stderr, "ovra-ramps: expected a ramp size on standard input\n");
        return -1;
    }
    uint16_t* block = malloc(sizeof(uint16_t) * 3 * (size_t)size);
    if (!block)
        return -1;
    if (read_values(block, 3 * size)) {
        fprintf(stderr, "ovra-ramps: expected %d values on standard input\n", 3 * size);
        free(block);
        return -1;
    }
    int rc = 0;
    for (int i = first; i <= last && rc == 0; ++i)
        rc = set_one(i, size, block, block + size, block + 2 * size);
    free(block);
    return rc;
}

static int parse_crtc(const char* text, int* index)
{
    char* end = NULL;
    long value = strtol(text, &end, 10);
    if (!*text || *end || value < 0 || value >= crtc_count) {
        fprintf(stderr, "ovra-ramps: no CRTC %s (there are %d)\n", text, crtc_count);
        return -1;
    }
    *index = (int)value;
    return 0;
}

int main(int argc, char** argv)
{
    if (argc < 2) {
        fprintf(stderr, "usage: ovra-ramps count | get [crtc] | linear | set [crtc]\n");
        return 2;
    }
    if (load_crtcs())
        return 1;
    int first = 0, last = crtc_count - 1, rc = 0;
    if (argc > 2 && parse_crtc(argv[2], &first) == 0)
        last = first;
    else if (argc > 2)
        return 1;

    if (strcmp(argv[1], "count") == 0) {
        printf("%d\n", crtc_count);
    } else if (strcmp(argv[1], "get") == 0) {
        for (int i = first; i <= last && rc == 0; ++i)
            rc = get_one(i);
    } else if (strcmp(argv[1], "linear") == 0) {
        rc = linear_all();
    } else if (strcmp(argv[1], "set") == 0) {
        rc = set_from_stdin(first, last);
    } else {
        fprintf(stderr, "ovra-ramps: unknown command %s\n", argv[1]);
        rc = 2;
    }
    free(resources);
    xcb_disconnect(conn);
    return rc == 0 ? 0 : (rc == 2 ? 2 : 1);
}
