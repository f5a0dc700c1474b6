#!/usr/bin/env bash
# coverage.sh BUILD_FOLDER: prints the share of lines that ran, folder by folder, from the counts that the tests left in
# a build of the preset "coverage". Fails when a folder without windows is below 95 %, or one with windows below 85 %.
set -euo pipefail

counts=$1/coverage.csv
gcovr --root . --filter 'src/' --exclude-throw-branches --csv "$counts" "$1"

# Columns: filename, line_total, line_covered, ...
awk -F, '
  NR > 1 {
    folder = $1
    sub(/\/[^\/]*$/, "", folder)
    total[folder] += $2
    covered[folder] += $3
  }
  END {
    for (folder in total) {
      if (total[folder] == 0) continue
      windows = folder ~ /^src\/(editors|look|shell|publish\/dialog)/
      wanted = windows ? 85 : 95
      share = 100 * covered[folder] / total[folder]
      printf "%-28s %6d of %6d lines  %5.1f %%  (wanted %d %%)\n", folder, covered[folder], total[folder], share, wanted | "sort"
      if (share < wanted) failed = 1
    }
    close("sort")
    exit failed
  }' "$counts"
