#!/usr/bin/env bash
# Measures the fonts again and writes the width model's table (typesetter/width_table.inc).
# Run it after a change of the fonts that the Qt surface prints with; the typesetter test
# "WidthModel.NeverNarrowerThanTheSurface" says when it is due.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$root/build}"
"$root/scripts/build.sh" "$build" >/dev/null
cmake --build "$build" --target make_width_table >/dev/null
QT_QPA_PLATFORM=offscreen "$build/typesetter/make_width_table" > "$root/typesetter/width_table.inc.part"
mv "$root/typesetter/width_table.inc.part" "$root/typesetter/width_table.inc"
echo "wrote typesetter/width_table.inc"
