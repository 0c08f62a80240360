#!/bin/sh
# Installs the Debian packages that building, running and testing need, and
# nothing when they are all there already. Safe to run again and again.
set -e
packages="build-essential cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev
  qt6-websockets-dev qt6-webchannel-dev qt6-webengine-dev
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-svg-dev qt6-multimedia-dev
  libxcb1-dev libxcb-randr0-dev libxss-dev libx11-dev
  nodejs chromium
  libgtest-dev libgmock-dev libbenchmark-dev
  libayatana-appindicator3-dev
  xvfb xauth x11-xserver-utils x11-utils xserver-xorg-core xserver-xorg-video-dummy xdotool trayer
  openbox
  python3"
missing=""
for p in $packages; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing="$missing $p"
  fi
done
if [ -n "$missing" ]; then
  echo "Installing:$missing"
  if [ "$(id -u)" -eq 0 ]; then sudo=""; else sudo="sudo"; fi
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing
fi
# The page libraries and the browser driver, as package-lock.json pins them;
# again whenever the lock file is newer than what was installed.
if [ -f package-lock.json ] && { [ ! -f node_modules/.package-lock.json ] ||
     [ package-lock.json -nt node_modules/.package-lock.json ]; }; then
  npm ci --no-audit --no-fund
fi
