#!/usr/bin/env bash
# Draws the PNG icons anew from their SVG sources in data/icons/: the program's icon and the
# icon of a collection file, at the sizes desktops ask for. Needs librsvg2-bin; run it after
# changing an icon, and commit the PNG files with it.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
if ! command -v rsvg-convert >/dev/null; then
  apt-get install -y -qq librsvg2-bin >/dev/null
fi
icons="$root/data/icons"
rm -rf "$icons/hicolor"
for size in 16 22 24 32 48 64 128 256; do
  mkdir -p "$icons/hicolor/${size}x${size}/apps" "$icons/hicolor/${size}x${size}/mimetypes"
  rsvg-convert -w "$size" -h "$size" "$icons/sumforge.svg" -o "$icons/hicolor/${size}x${size}/apps/sumforge.png"
  rsvg-convert -w "$size" -h "$size" "$icons/application-x-sumforge-collection.svg" \
    -o "$icons/hicolor/${size}x${size}/mimetypes/application-x-sumforge-collection.png"
done
