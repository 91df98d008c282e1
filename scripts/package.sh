#!/usr/bin/env bash
# Makes the Debian package: builds the program and its manual in BUILD_DIR (default build/)
# and runs `cpack -G DEB` there; the package is BUILD_DIR/sumforge_VERSION_ARCH.deb.
#   scripts/package.sh [BUILD_DIR]
# Needs dpkg-dev and file (for the library dependencies), installed when missing.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$root/build}"
missing=()
for tool in dpkg-shlibdeps:dpkg-dev file:file; do
  command -v "${tool%%:*}" >/dev/null || missing+=("${tool##*:}")
done
if [ ${#missing[@]} -gt 0 ]; then
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
"$root/scripts/build.sh" "$build"
cmake --build "$build" --target manual
cd "$build"
cpack -G DEB
ls -1 "$build"/sumforge_*.deb
