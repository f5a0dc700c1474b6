#!/usr/bin/env bash
# The tests without the browser, built with clang++ and the address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${LINT_PACKAGES[@]}" "${VIRTUAL_DISPLAY_PACKAGES[@]}"
cmake --preset asan --log-level=WARNING
cmake --build --preset asan
LSAN_OPTIONS="suppressions=$PWD/scripts/leaks.supp:print_suppressions=0" \
  ctest --test-dir build/asan --output-on-failure --no-tests=error --parallel "$(nproc)" "$@"
