#!/usr/bin/env bash
# Puts Tarnwick, from the folder that this script lies in, into your desktop's menu. Run it again after moving the folder.
set -euo pipefail
folder=$(cd "$(dirname "$0")" && pwd)
data=${XDG_DATA_HOME:-$HOME/.local/share}

# A path stands in quotes there: four letters in it are escaped, and then each backslash once more, as in every text.
escaped=$(printf '%s' "$folder/Tarnwick" | sed -e 's/[\\"`$]/\\&/g' -e 's/\\/\\\\/g' -e 's/%/%%/g')
mkdir -p "$data/applications" "$data/icons/hicolor/scalable/apps"
cp "$folder/tarnwick.svg" "$data/icons/hicolor/scalable/apps/tarnwick.svg"
while IFS= read -r line; do
  case $line in
    Exec=*) printf 'Exec=env "%s"\n' "$escaped" ;; # some desktops do not take a %% in the first word
    *) printf '%s\n' "$line" ;;
  esac
done <"$folder/tarnwick.desktop" >"$data/applications/tarnwick.desktop"
echo "Tarnwick stands in the menu."
