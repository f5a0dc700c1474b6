#!/bin/sh
# Renders every picture of the sample shop into app/pictures.
# Needs Debian's librsvg2-bin (rsvg-convert), python3 and fonts-liberation.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
pictures="$here/../app/pictures"
drawings=$(mktemp -d)
trap 'rm -rf "$drawings"' EXIT

mkdir -p "$pictures"
PYTHONDONTWRITEBYTECODE=1 python3 "$here/draw.py" "$drawings"
for drawing in "$drawings"/*.svg; do
    rsvg-convert --format png --output "$pictures/$(basename "$drawing" .svg).png" "$drawing"
done
echo "$(find "$drawings" -type f | wc -l) pictures drawn."
