#!/usr/bin/env bash
# Builds the portable archive and the Debian package, and prints where they are. With SOURCE_DATE_EPOCH the same sources
# give the same bytes.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}"
cmake --preset release --log-level=WARNING
cmake --build --preset release --target all debian_files
for generator in TGZ DEB; do
  cpack --config build/release/CPackConfig.cmake -G "$generator" >build/release/cpack.log ||
    { cat build/release/cpack.log; exit 1; }
done
echo "Archive, which runs where it is unpacked on a machine with ${RUN_PACKAGES[*]}:"
find "$PWD/build/release/package" -maxdepth 1 -name '*.tar.gz'
echo "Debian package, which brings what it needs (apt install FILE):"
find "$PWD/build/release/package" -maxdepth 1 -name '*.deb'
