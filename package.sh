#!/usr/bin/env bash
# Builds the portable archive and prints where it is. It needs no installation: unpack it and start Tarnwick in it.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}"
cmake --preset release --log-level=WARNING
cmake --build --preset release
cpack --config build/release/CPackConfig.cmake >build/release/cpack.log || { cat build/release/cpack.log; exit 1; }
echo "Archive: $(find "$PWD/build/release/package" -maxdepth 1 -name '*.tar.gz')"
echo "To run it, a machine needs: ${RUN_PACKAGES[*]}"
