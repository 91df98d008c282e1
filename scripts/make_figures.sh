#!/usr/bin/env bash
# Draws the figures anew: SVG sources from data/img/src/make_figures.py, then the GIF
# files the program loads (data/img/) and the subject picture (data/Mathematics.jpg).
# Needs librsvg2-bin and imagemagick; run it after changing a figure, and commit both.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
for tool in rsvg-convert:librsvg2-bin convert:imagemagick; do
  if ! command -v "${tool%%:*}" >/dev/null; then
    apt-get install -y -qq "${tool##*:}" >/dev/null
  fi
done
src="$root/data/img/src"
python3 "$src/make_figures.py"
tmp="$(mktemp -d)"
trap 'rm -rf "$tmp"' EXIT
# 12 pixels a millimetre (about 300 dots an inch): sharp on paper and on dense screens.
for svg in "$src"/*.svg; do
  name="$(basename "$svg" .svg)"
  rsvg-convert --dpi-x 304.8 --dpi-y 304.8 "$svg" -o "$tmp/$name.png"
  if [ "$name" = mathematics ]; then
    convert "$tmp/$name.png" -quality 92 "$root/data/Mathematics.jpg"
  else
    # Every tag gives its figure a negative height, which paints the picture mirrored
    # top to bottom; the files are kept upside down so that the page shows them upright.
    # White is transparent, so that the free band at the top never hides the line above.
    convert "$tmp/$name.png" -background white -flatten -flip -fuzz 3% -transparent white "$root/data/img/$name.gif"
  fi
done
