#!/usr/bin/env bash
# Builds everything and runs all tests. A second run without changes builds nothing. What is given goes to ctest.
# --coverage, ahead of it: another build that counts which lines run, and the share of each folder at the end.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

preset="test"
if [ "${1:-}" = --coverage ]; then
  shift
  preset=coverage
  need gcovr
fi

need "${BUILD_PACKAGES[@]}" clang "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${VIRTUAL_DISPLAY_PACKAGES[@]}"
cmake --preset "$preset" --log-level=WARNING
cmake --build --preset "$preset"
[ "$preset" != coverage ] || find build/coverage -name '*.gcda' -delete
ctest --test-dir "build/$preset" --output-on-failure --no-tests=error --parallel "$(nproc)" "$@"
[ "$preset" != coverage ] || scripts/coverage.sh build/coverage
