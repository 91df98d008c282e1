#!/usr/bin/env bash
# Photographs the windows as a teacher meets them on a desktop: the empty start screen, the
# main window with a collection (a problem selected), the wizard, the properties, the print
# preview, and the same windows at scale factor 2 on a 1600 x 1000 screen. Drives the real
# program under a virtual X display with a window manager.
#   scripts/screenshots_desktop.sh [BUILD_DIR] [OUT_DIR]
# (defaults build/ and BUILD_DIR/screenshots-desktop). Needs xvfb, openbox, xdotool and
# imagemagick (installed when missing). A fresh settings folder is used.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
out="${2:-$build/screenshots-desktop}"
program="$build/app/sumforge"
cli="$build/cli/sumforge-cli"
[ -x "$program" ] && [ -x "$cli" ] || { echo "build the program first: ./scripts/build.sh build" >&2; exit 1; }
missing=()
for tool in Xvfb:xvfb openbox:openbox xdotool:xdotool import:imagemagick xdpyinfo:x11-utils; do
  command -v "${tool%%:*}" >/dev/null || missing+=("${tool##*:}")
done
if [ ${#missing[@]} -gt 0 ]; then
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
mkdir -p "$out"
work="$(mktemp -d)"
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  rm -rf "$work"
}
trap cleanup EXIT

"$cli" new NRP:12x3:4 ALG:3x2 TRI:6x1 --seed 2024 --title "Practice sheet" --solutions after \
  -o "$work/Practice sheet.col" >/dev/null

window() { xdotool search --sync --onlyvisible --name "$1" | head -n 1; }
shoot() {
  sleep 1.5
  import -window "$1" "$out/$2.png"
  echo "$out/$2.png"
}
keys() { xdotool key --delay 150 "$@"; sleep 0.7; }
click() { xdotool mousemove --window "$1" "$2" "$3" click 1; sleep 0.7; }

# One session: a display of the given size, the program at the given scale; $3 names the shots.
session() {
  local size="$1" scale="$2" tag="$3"
  local display=":$((90 + RANDOM % 100))"
  export XDG_CONFIG_HOME="$work/config-$tag" XDG_DATA_HOME="$work/data-$tag" XDG_RUNTIME_DIR="$work/run-$tag"
  mkdir -p "$XDG_CONFIG_HOME/Sumforge RUQ7" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
  printf '[Ver]\nEdicBotones=S\n[Wizard]\nShowini=S\nShowavan=S\n' > "$XDG_CONFIG_HOME/Sumforge RUQ7/Sumforge RUQ7.ini"
  Xvfb "$display" -screen 0 "${size}x24" -nolisten tcp >/dev/null 2>&1 &
  local xvfb=$!
  pids+=($xvfb)
  export DISPLAY="$display" QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR="$scale"
  for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done
  openbox >/dev/null 2>&1 &
  local wm=$!
  pids+=($wm)
  sleep 1

  # The empty window first: what to do, in words and buttons.
  "$program" >/dev/null 2>&1 &
  local app=$!
  pids+=($app)
  sleep 3
  local main
  main=$(window "Sumforge")
  xdotool windowactivate --sync "$main"
  shoot "$main" "$tag-start-screen"
  kill "$app" 2>/dev/null || true

  "$program" "$work/Practice sheet.col" >/dev/null 2>&1 &
  app=$!
  pids+=($app)
  sleep 3
  main=$(window "Practice sheet.col")
  xdotool windowactivate --sync "$main"
  sleep 1
  shoot "$main" "$tag-main-window"
  # Larger: the page is fitted to the new width.
  xdotool windowsize "$main" 90% 88%
  sleep 2
  shoot "$main" "$tag-main-window-wide"

  keys alt+c Up Return                # Collection > Properties of the collection...
  local properties
  properties=$(window "Properties of the collection")
  keys ctrl+Tab ctrl+Tab ctrl+Tab     # to the problem numbers, by the keyboard
  shoot "$properties" "$tag-properties"
  keys Escape

  keys alt+f v                        # File > Print Preview...
  local preview
  preview=$(window "Print Preview")
  shoot "$preview" "$tag-print-preview"
  keys Escape

  keys alt+f n                        # File > New collection...
  local wizard
  wizard=$(window "Wizard")
  shoot "$wizard" "$tag-wizard-start"
  # Next, at its place in the wizard's layout (780 by 540 at scale 1).
  click "$wizard" $((603 * scale)) $((516 * scale))
  keys Right Right Tab
  shoot "$wizard" "$tag-wizard-subject"
  keys Escape
  sleep 0.5
  kill "$app" "$wm" "$xvfb" 2>/dev/null || true
  sleep 0.5
}

session 1280x960 1 desktop
session 1600x1000 2 scale2
