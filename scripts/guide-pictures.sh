#!/usr/bin/env bash
# Makes the pictures of docs/guide anew from the screenshots of ./run.sh, smaller and with fewer colours.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

need imagemagick
# The picture of the guide, and what the tour calls the screenshot.
pictures=(
  "catalogue        window_popup_product"
  "shop             panel_shop_general"
  "picture-picker   panel_picture_picker"
  "product          panel_product_general"
  "discount         panel_shop_discount"
  "design           design_category_page"
  "style            dialog_style"
  "template         design_template_advanced"
  "upload           dialog_upload"
  "preview          page_preview"
)
mkdir -p docs/guide/pictures
for picture in "${pictures[@]}"; do
  read -r name screenshot <<<"$picture"
  convert screenshots/light/*_"$screenshot".png -resize 900x +dither -colors 255 -strip -define png:compression-level=9 \
    "docs/guide/pictures/$name.png"
done
