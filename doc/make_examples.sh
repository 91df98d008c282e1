#!/usr/bin/env bash
# Makes what the manual shows of the program's own output, with sumforge-cli: the catalogue
# listing (for the table of subjects) and example pages, in OUTDIR.
#   doc/make_examples.sh path/to/sumforge-cli OUTDIR
# Fixed seeds keep the pages the same from build to build.
set -euo pipefail
cli="$1"
out="$2"
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
mkdir -p "$out/examples"
"$cli" catalogue > "$out/catalogue.txt"

# One page of a collection drawn as the page view shows it: examples/NAME.png.
page() {
  local name="$1"; shift
  rm -rf "$out/examples/$name"
  "$cli" new "$@" -o "$out/examples/$name.col" >/dev/null
  "$cli" render "$out/examples/$name.col" --png "$out/examples/$name" >/dev/null
  cp "$out/examples/$name/page-001.png" "$out/examples/$name.png"
}
page after NRP:12x4:4 ALG:3x2 --seed 7 --title "Practice sheet" --solutions after
page end TRI:6x2 GDE:2x2 --seed 11 --title "Figures and angles" --solutions end
