#!/usr/bin/env bash
# The format of all our sources, the shell scripts, the desktop entry, and clang-tidy, which also reports the second
# compiler's warnings, over the program's own sources, eight at a time.
#   --format            all but clang-tidy
#   --all               clang-tidy over tests and benchmarks too
# One source at a time, which takes ten times as long for each and finds a header that a source forgets to include:
#   --changed [COMMIT]  clang-tidy over what differs from that commit (HEAD), and over what includes a header that does
#   --touched [COMMIT]  clang-tidy over the program's own sources that differ, and those of a header that does
#   FILE...             clang-tidy over these sources
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

# The sources among the given files, and those that include a header among them.
sources_of() {
  local file
  for file in "$@"; do
    case $file in
      *.cpp) echo "$file" ;;
      *.h) git grep -lE --untracked "^#include \"([^\"]*/)?$(basename "$file")\"" -- '*.cpp' || true ;;
    esac
  done | sort -u
}

# The sources among the given files, and the one beside each header.
sources_beside() {
  local file
  for file in "$@"; do
    file=${file%.*}.cpp
    case $file in
      src/* | tour/*) [ ! -f "$file" ] || echo "$file" ;;
    esac
  done | sort -u
}

# Our files that differ from a commit.
changed_since() {
  git rev-parse -q --verify "$1^{commit}" >/dev/null || { echo "There is no commit $1." >&2; return 2; }
  git diff --name-only --diff-filter=d "$1" -- '*.h' '*.cpp'
  git ls-files --others --exclude-standard -- '*.h' '*.cpp'
}

need git clang-format shellcheck desktop-file-utils appstream
git ls-files '*.h' '*.cpp' | xargs -r clang-format --dry-run -Werror
echo "clang-format: clean"
git ls-files '*.sh' .ci/run packaging/debian/tarnwick | xargs -r shellcheck -x
desktop-file-validate packaging/tarnwick.desktop
appstreamcli validate --no-net packaging/debian/tarnwick.metainfo.xml >/dev/null
echo "shellcheck, desktop-file-validate, appstreamcli: clean"

# What the build that takes eight sources together compiles in these folders, without what tools have written.
compiled_in() {
  grep -o '"file": "[^"]*"' build/lint-whole/compile_commands.json | cut -d '"' -f 4 |
    while read -r file; do
      if [[ ${file#"$PWD"/} =~ ^(build/lint-whole/)?($1)/ ]]; then echo "$file"; fi
    done | grep -vE '/(mocs_compilation|qrc_[^/]*)\.cpp$' | sort -u
}

preset=lint
files=()
case ${1:-} in
  --format) exit 0 ;;
  "" | --all) preset=lint-whole ;;
  --changed)
    list=$(changed_since "${2:-HEAD}")
    mapfile -t changed <<<"$list"
    mapfile -t files < <(sources_of "${changed[@]}")
    ;;
  --touched)
    list=$(changed_since "${2:-HEAD}")
    mapfile -t changed <<<"$list"
    mapfile -t files < <(sources_beside "${changed[@]}")
    ;;
  *) files=("$@") ;;
esac

need "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${LINT_PACKAGES[@]}" "${BENCH_PACKAGES[@]}"
cmake --preset "$preset" --log-level=WARNING >/dev/null
case ${1:-} in
  "") mapfile -t files < <(compiled_in "src|tour") ;;
  --all) mapfile -t files < <(compiled_in "src|tour|tests|bench|fuzz") ;;
esac
if [ ${#files[@]} -eq 0 ]; then
  echo "clang-tidy: no sources to look at"
  [ "$preset" = lint ]
  exit
fi
# A file of eight sources includes them, and what one of them declares may shadow what another one has.
options=(--quiet)
[ "$preset" = lint ] || options+=(--checks=-bugprone-suspicious-include --extra-arg=-Wno-shadow)
# One file at a time on each core; what clang-tidy finds goes to the standard output, its counts are of no use.
printf '%s\0' "${files[@]}" | xargs -0 -r -n 1 -P "$(nproc)" clang-tidy -p "build/$preset" "${options[@]}" 2>/dev/null
echo "clang-tidy: ${#files[@]} files, clean"
