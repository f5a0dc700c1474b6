#!/usr/bin/env bash
# Builds the fuzz targets and runs each for a number of seconds, 120 unless told otherwise, on inputs of so many bytes at
# most, 1,000 unless told otherwise: ./fuzz.sh [seconds [bytes]]
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

seconds=${1:-120}
bytes=${2:-1000}
need "${BUILD_PACKAGES[@]}" "${LINT_PACKAGES[@]}"
cmake --preset fuzz --log-level=WARNING
cmake --build --preset fuzz --target fuzzers

work=build/fuzz
mkdir -p "$work/findings"
for program in "$work"/fuzz/*_fuzz; do
  name=$(basename "$program" _fuzz)
  mkdir -p "$work/learned/$name"
  options=(-max_total_time="$seconds" -timeout=20 -rss_limit_mb=3000 -max_len="$bytes" -print_final_stats=1
    -artifact_prefix="$work/findings/$name-")
  [ ! -f "fuzz/$name.dict" ] || options+=(-dict="fuzz/$name.dict")
  echo "== $name, $seconds seconds"
  "$program" "${options[@]}" "$work/learned/$name" "fuzz/corpus/$name"
done
echo "No findings."
