#!/usr/bin/env bash
# Lets the monkey press at random on the real window, under the address and undefined-behaviour sanitizers, for a number
# of seconds (120 unless told otherwise): ./monkey.sh [seconds [first seed [option...]]]. With --careful it plays an owner
# who types what the fields ask for; then no run may end in an error.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${LINT_PACKAGES[@]}"
cmake --preset asan --log-level=WARNING
cmake --build --preset asan --target monkey
LSAN_OPTIONS="suppressions=$PWD/scripts/leaks.supp:print_suppressions=0" \
  build/asan/tests/monkey/monkey --seconds "${1:-120}" --seed "${2:-1}" "${@:3}"
