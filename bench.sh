#!/usr/bin/env bash
# Measures Tarnwick against named peers and prints how many times faster it is. Fails when a wanted ratio is missed.
# With a name it builds and runs one program: ./bench.sh template. What follows the name goes to the program.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${BENCH_PACKAGES[@]}" "${VIRTUAL_DISPLAY_PACKAGES[@]}"
cmake --preset bench --log-level=WARNING

# What a click costs is measured on a screen.
screen=()
[ -n "${DISPLAY:-}" ] || screen=(xvfb-run -a -s "-screen 0 1920x1200x24")

if [ $# -gt 0 ]; then
  program=${1%_bench}_bench
  shift
  if [ ! -f "bench/$program.cpp" ]; then
    echo "There is no $program. There are:" bench/*_bench.cpp >&2
    exit 2
  fi
  cmake --build --preset bench --target "$program"
  exec "${screen[@]}" "build/bench/bench/$program" "$@"
fi

cmake --build --preset bench --target benchmarks
failed=0
for program in build/bench/bench/*_bench; do
  echo "== ${program##*/}"
  "${screen[@]}" "$program" || failed=1
done
exit "$failed"
