#!/usr/bin/env bash
# Builds everything and runs all tests. A second run without changes builds nothing.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${VIRTUAL_DISPLAY_PACKAGES[@]}"
cmake --preset dev --log-level=WARNING
cmake --build --preset dev
ctest --test-dir build/dev --output-on-failure --no-tests=error "$@"
