#!/usr/bin/env bash
# Builds Tarnwick and starts it on the shop in build/release/Tarnwick. Without a display it walks a tour of the real
# windows under a virtual one instead, in four looks, leaves numbered screenshots, and prints where they are.
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
# One walk a look: its folder, and what the tour is told. The shop's own pages are the same in all of them.
looks=(
  "light"
  "dark --dark --without-pages"
  "150 --scale 1.5 --without-pages"
  "1366x768 --size 1366x768 --without-pages"
)
rm -rf screenshots
for look in "${looks[@]}"; do
  read -r folder options <<<"$look"
  # shellcheck disable=SC2086 # several words
  QT_LOGGING_RULES="qt.webenginecontext=false" xvfb-run -a -s "-screen 0 1920x1200x24" \
    build/release/tour/tarnwick_tour "screenshots/$folder" $options
done
echo "Screenshots: $PWD/screenshots"
