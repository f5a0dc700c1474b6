#!/usr/bin/env bash
# Builds Tarnwick and starts it on the shop in build/release/Tarnwick. Without a display it walks a tour of the real
# windows under a virtual one instead, leaves numbered screenshots, and prints where they are: in one look, or in four
# with --all-looks. What was walked before and has not changed since is not walked again.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

looks=(light)
case "${1:-}" in
"") ;;
--all-looks) looks=(light dark 150 1366x768) ;;
*)
  echo "usage: ./run.sh [--all-looks]" >&2
  exit 2
  ;;
esac

has_display() { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }

packages=("${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}")
has_display || packages+=("${VIRTUAL_DISPLAY_PACKAGES[@]}")
need "${packages[@]}"

if [ ! -x build/release/Tarnwick/Tarnwick ]; then
  echo "Building Tarnwick: about $((4 / $(nproc) + 1)) minutes and 1 GB the first time."
else
  echo "Building what has changed."
fi
cmake --preset release --log-level=WARNING >/dev/null
cmake --build --preset release

if has_display; then
  echo "Starting build/release/Tarnwick/Tarnwick."
  exec build/release/Tarnwick/Tarnwick
fi

# What the tour is told for a look. The shop's own pages are the same in all of them.
options_of() {
  case "$1" in
  light) ;;
  dark) echo "--dark --without-pages" ;;
  150) echo "--scale 1.5 --without-pages" ;;
  1366x768) echo "--size 1366x768 --without-pages" ;;
  esac
}

# True when the look was walked to its end, and neither the program nor its shop has changed since.
is_walked() {
  local stamp=build/release/tour/walked-$1
  [ -d "screenshots/$1" ] && [ "$stamp" -nt build/release/tour/tarnwick_tour ] &&
    [ -z "$(find app -newer "$stamp" -print -quit)" ]
}

for look in "${looks[@]}"; do
  if is_walked "$look"; then
    echo "Nothing has changed since the last walk: $PWD/screenshots/$look"
    continue
  fi
  echo "There is no display here: walking the tour of the windows under a virtual one, about two minutes ($look)."
  rm -rf "screenshots/$look"
  # shellcheck disable=SC2046 # several words
  xvfb-run -a -s "-screen 0 1920x1200x24" \
    build/release/tour/tarnwick_tour "screenshots/$look" $(options_of "$look")
  touch "build/release/tour/walked-$look"
  echo "Screenshots: $PWD/screenshots/$look"
done
