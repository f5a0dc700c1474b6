#!/usr/bin/env bash
# Looks at every page of the sample shop with axe-core, wide and narrow, in the browser of the preview. Fails on a
# violation. The checker is one script, which npm gets from wherever it is set up to ask.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${LINT_PACKAGES[@]}"
command -v npm >/dev/null || need "${AXE_PACKAGES[@]}" # any npm will do
folder=build/axe
script=$folder/axe-core-$AXE_VERSION.min.js
if [ ! -f "$script" ]; then
  mkdir -p "$folder"
  (cd "$folder" && quietly npm pack --loglevel=error "axe-core@$AXE_VERSION")
  tar -xzf "$folder/axe-core-$AXE_VERSION.tgz" -O package/axe.min.js >"$script.part"
  mv "$script.part" "$script"
fi
cmake --preset test --log-level=WARNING
cmake --build --preset test --target axe_pages
TARNWICK_AXE=$PWD/$script QT_QPA_PLATFORM=offscreen build/test/tests/axe/axe_pages --gtest_brief=1
