#!/usr/bin/env bash
# Builds Tarnwick and starts it on the shop in build/release/Tarnwick. Without a display it walks a tour of the real
# windows under a virtual one instead, leaves numbered screenshots, and prints where they are.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}"
cmake --preset release --log-level=WARNING
cmake --build --preset release

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec build/release/Tarnwick/Tarnwick
fi

echo "There is no display here: walking the tour of the windows under a virtual one."
need "${VIRTUAL_DISPLAY_PACKAGES[@]}"
rm -rf screenshots
xvfb-run -a -s "-screen 0 1920x1200x24" build/release/tarnwick_tour screenshots
echo "Screenshots: $PWD/screenshots"
