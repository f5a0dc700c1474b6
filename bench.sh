#!/usr/bin/env bash
# Measures Tarnwick against named peers and prints how many times faster it is. Fails when a wanted ratio is missed.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${BENCH_PACKAGES[@]}"
cmake --preset bench --log-level=WARNING
cmake --build --preset bench --target benchmarks

failed=0
for program in build/bench/bench/*_bench; do
  "$program" "$@" || failed=1
done
exit "$failed"
