#!/usr/bin/env bash
# Configures (once) and builds into the given folder; extra arguments go to CMake.
set -euo pipefail
dir="$1"; shift
root="$(cd "$(dirname "$0")/.." && pwd)"
# Paths relative to the checkout, so that several checkouts share the compiler cache.
export CCACHE_BASEDIR="$root"
if [ ! -f "$dir/build.ninja" ]; then
  cmake -S "$root" -B "$dir" -G Ninja "$@" >/dev/null
fi
cmake --build "$dir" -j2
