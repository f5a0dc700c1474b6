#!/usr/bin/env bash
# The format of all our sources, the shell scripts, the desktop entry, and clang-tidy, which also reports the second
# compiler's warnings, over the program's own sources. --format: all but clang-tidy. --all: clang-tidy over tests,
# benchmarks and fuzz targets too.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

need git clang-format shellcheck desktop-file-utils
git ls-files '*.h' '*.cpp' | xargs -r clang-format --dry-run -Werror
echo "clang-format: clean"
git ls-files '*.sh' .ci/run | xargs -r shellcheck -x
desktop-file-validate packaging/tarnwick.desktop
echo "shellcheck and desktop-file-validate: clean"
[ "${1:-}" != --format ] || exit 0

need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${LINT_PACKAGES[@]}"
cmake --preset lint --log-level=WARNING
sources=('src/*.cpp' 'tour/*.cpp')
[ "${1:-}" != --all ] || sources+=('tests/*.cpp' 'bench/*.cpp' 'fuzz/*.cpp')
# One file at a time on each core; what clang-tidy finds goes to the standard output, its counts are of no use.
git ls-files "${sources[@]}" | xargs -r -n 1 -P "$(nproc)" clang-tidy -p build/lint --quiet 2>/dev/null
echo "clang-tidy: clean"
