#!/bin/sh
# A headless Xorg with the dummy video driver: sixteen CRTCs that each keep
# their own gamma ramps, for tests that need more than one output.
#
#   xorg-dummy.sh start [outputs]   starts a server with `outputs` (default 3)
#                                   active outputs side by side and prints its
#                                   display name, e.g. ":141"
#   xorg-dummy.sh stop DISPLAY      stops a server started here
#
# Xorg needs root for this; without it, or without the driver, start fails
# with one line on standard error and status 77 so that callers can skip.
set -u

state_dir() { echo "${TMPDIR:-/tmp}/ovra-xorg-dummy-$1"; }

start() {
    outputs=${1:-3}
    if [ "$(id -u)" != 0 ]; then
        echo "xorg-dummy: Xorg with the dummy driver needs root" >&2
        exit 77
    fi
    if ! command -v Xorg >/dev/null 2>&1 || ! [ -e /usr/lib/xorg/modules/drivers/dummy_drv.so ]; then
        echo "xorg-dummy: Xorg or its dummy driver (xserver-xorg-video-dummy) is not installed" >&2
        exit 77
    fi
    # mkdir of the state directory claims a number, so that two starts at
    # the same moment do not pick the same one.
    n=140
    while [ -e "/tmp/.X$n-lock" ] || [ -e "/tmp/.X11-unix/X$n" ] || ! mkdir "$(state_dir $n)" 2>/dev/null; do
        n=$((n + 1))
        if [ $n -gt 400 ]; then
            echo "xorg-dummy: no free display number" >&2
            exit 77
        fi
    done
    dir=$(state_dir $n)
    mkdir -p "$dir/conf.d" || exit 1
    cat >"$dir/xorg.conf" <<CONF
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoAddGPU" "false"
    Option "DontVTSwitch" "true"
EndSection
Section "Device"
    Identifier "dummy"
    Driver "dummy"
    VideoRam 256000
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 5.0 - 1000.0
    VertRefresh 5.0 - 200.0
    Modeline "1024x768" 63.50 1024 1072 1176 1328 768 771 775 798 -hsync +vsync
EndSection
Section "Screen"
    Identifier "screen"
    Device "dummy"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Modes "1024x768"
        Virtual 8192 1024
    EndSubSection
EndSection
CONF
    Xorg ":$n" -config "$dir/xorg.conf" -configdir "$dir/conf.d" -logfile "$dir/Xorg.log" \
        -noreset -nolisten tcp >"$dir/stderr" 2>&1 &
    echo $! >"$dir/pid"
    i=0
    until xrandr -display ":$n" >/dev/null 2>&1; do
        i=$((i + 1))
        if [ $i -gt 100 ] || ! kill -0 "$(cat "$dir/pid")" 2>/dev/null; then
            echo "xorg-dummy: Xorg :$n did not start (see $dir/Xorg.log)" >&2
            stop ":$n" keep-log
            exit 77
        fi
        sleep 0.1
    done
    # The first output comes up by itself; the others have no modes until
    # they are given the one the first uses.
    k=1
    while [ $k -lt "$outputs" ]; do
        xrandr -display ":$n" --addmode "DUMMY$k" 1024x768 &&
            xrandr -display ":$n" --output "DUMMY$k" --mode 1024x768 --pos "$((k * 1024))x0" || {
            echo "xorg-dummy: could not switch on output DUMMY$k" >&2
            stop ":$n"
            exit 1
        }
        k=$((k + 1))
    done
    echo ":$n"
}

stop() {
    n=${1#:}
    dir=$(state_dir "$n")
    if [ -f "$dir/pid" ]; then
        pid=$(cat "$dir/pid")
        kill "$pid" 2>/dev/null
        i=0
        while kill -0 "$pid" 2>/dev/null && [ $i -lt 50 ]; do
            sleep 0.1
            i=$((i + 1))
        done
        kill -9 "$pid" 2>/dev/null
    fi
    [ "${2:-}" = keep-log ] || rm -rf "$dir"
}

case "${1:-}" in
start) start "${2:-3}" ;;
stop) [ $# -ge 2 ] || { echo "usage: xorg-dummy.sh stop DISPLAY" >&2; exit 2; }; stop "$2" ;;
*) echo "usage: xorg-dummy.sh start [outputs] | stop DISPLAY" >&2; exit 2 ;;
esac
