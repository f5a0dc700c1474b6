#!/usr/bin/env bash
# Builds the fuzz targets and runs each for a number of seconds, 120 unless told otherwise, on inputs of so many bytes at
# most, 1,000 unless told otherwise: ./fuzz.sh [seconds [bytes]]. The check of XML is also run on whole shop files.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

seconds=${1:-120}
bytes=${2:-1000}
need "${BUILD_PACKAGES[@]}" "${LINT_PACKAGES[@]}" libexpat1-dev
cmake --preset fuzz --log-level=WARNING
cmake --build --preset fuzz --target fuzzers

# Remembering two calls in the place of thirty for every piece of memory saves a third of the time. To see all of them in
# a finding, run its input again without it.
export ASAN_OPTIONS=malloc_context_size=2${ASAN_OPTIONS:+:$ASAN_OPTIONS}

work=build/fuzz
mkdir -p "$work/findings"

# fuzz NAME BYTES LEARNED SEEDS...: what is learned goes to a folder of that name.
fuzz() {
  local name=$1 largest=$2 learned=$work/learned/$3
  shift 3
  local options=(-max_total_time="$seconds" -timeout=20 -rss_limit_mb=3000 -max_len="$largest" -print_final_stats=1
    -artifact_prefix="$work/findings/$name-")
  [ ! -f "fuzz/$name.dict" ] || options+=(-dict="fuzz/$name.dict")
  mkdir -p "$learned"
  echo "== $name, $seconds seconds, $largest bytes"
  "$work/fuzz/${name}_fuzz" "${options[@]}" "$learned" "$@"
}

for program in "$work"/fuzz/*_fuzz; do
  name=$(basename "$program" _fuzz)
  fuzz "$name" "$bytes" "$name" "fuzz/corpus/$name"
done

shops=$work/shops
mkdir -p "$shops"
cp app/shop.xml "$shops/sample.xml"
cp tests/data/upload/shop/shop.xml "$shops/upload.xml"
fuzz xml_check 300000 xml_check_shops "$shops"
echo "No findings."
