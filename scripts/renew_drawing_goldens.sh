#!/usr/bin/env bash
# Writes the drawing goldens again (tests/typesetter/drawing_goldens/*.txt) after an intended
# change of what the typesetter draws. Read the diff before committing them.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$root/build}"
if [ ! -f "$build/build.ninja" ]; then "$root/scripts/build.sh" "$build" >/dev/null; fi
CCACHE_BASEDIR="$root" cmake --build "$build" -j2 --target typesetter_tests >/dev/null
cd "$build/tests/typesetter"
SUMFORGE_RENEW_DRAWING_GOLDENS=1 QT_QPA_PLATFORM=offscreen ./typesetter_tests \
  --gtest_filter='DrawingGoldens.EveryProblemDrawsAsItsGolden' >/dev/null
git -C "$root" status --short -- tests/typesetter/drawing_goldens
