#!/usr/bin/env bash
# Lets the monkey press at random on the real window, under the address and undefined-behaviour sanitizers, for a number
# of seconds (120 unless told otherwise): ./monkey.sh [seconds] [first seed]
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${LINT_PACKAGES[@]}"
cmake --preset asan --log-level=WARNING
cmake --build --preset asan --target monkey
LSAN_OPTIONS="suppressions=$PWD/scripts/leaks.supp:print_suppressions=0" \
  build/asan/tests/monkey/monkey --seconds "${1:-120}" --seed "${2:-1}"
