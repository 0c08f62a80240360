#!/bin/sh
# Starts a private Xvfb with RandR, makes its ramps linear, runs the command
# with DISPLAY pointing at it, and stops the server again.
set -u
n=90
while [ -e "/tmp/.X$n-lock" ] || [ -e "/tmp/.X11-unix/X$n" ]; do n=$((n + 1)); done
Xvfb ":$n" -screen 0 1280x800x24 +extension RANDR -noreset -nolisten tcp >/dev/null 2>&1 &
xvfb_pid=$!
trap 'kill $xvfb_pid 2>/dev/null; wait $xvfb_pid 2>/dev/null' EXIT INT TERM
i=0
until xrandr -display ":$n" >/dev/null 2>&1; do
  i=$((i + 1))
  if [ $i -gt 100 ]; then echo "Xvfb :$n did not start" >&2; exit 1; fi
  sleep 0.1
done
# A fresh Xvfb holds uninitialised ramps: make them the identity first.
xrandr -display ":$n" --output screen --gamma 1:1:1 >/dev/null 2>&1 || true
DISPLAY=":$n" "$@"
