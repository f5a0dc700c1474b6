#!/usr/bin/env bash
# Kills the program 500 times, or as often as it is told, at random moments of an owner's day, and looks each time
# whether the shop opens and what was lost: ./scripts/kills.sh [count] [seed]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" clang "${TEST_PACKAGES[@]}"
cmake --preset test --log-level=WARNING
cmake --build --preset test --target kills
build/test/tests/kills/kills --count "${1:-500}" --seed "${2:-1}"
