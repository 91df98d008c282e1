#!/usr/bin/env bash
# Renews the screenshots of the user's manual (doc/images/*.png): drives the real program
# under a virtual X display with a window manager, by keys and clicks, and photographs its
# windows. One command:
#   scripts/make_screenshots.sh [BUILD_DIR]      (default build/; the program must be built)
# Needs xvfb, openbox, xdotool and imagemagick (installed when missing). A fresh settings
# folder is used, so the pictures never show the settings of the person who runs it.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
program="$build/app/sumforge"
cli="$build/cli/sumforge-cli"
[ -x "$program" ] && [ -x "$cli" ] || { echo "build the program first: ./scripts/build.sh build" >&2; exit 1; }
missing=()
for tool in Xvfb:xvfb openbox:openbox xdotool:xdotool import:imagemagick; do
  command -v "${tool%%:*}" >/dev/null || missing+=("${tool##*:}")
done
if [ ${#missing[@]} -gt 0 ]; then
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

out="$root/doc/images"
work="$(mktemp -d)"
display=":$((90 + RANDOM % 100))"
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  rm -rf "$work"
}
trap cleanup EXIT

export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" XDG_RUNTIME_DIR="$work/run"
mkdir -p "$XDG_CONFIG_HOME/Sumforge RUQ7" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
# The wizard with its start page and its advanced pages, the editing buttons shown.
cat > "$XDG_CONFIG_HOME/Sumforge RUQ7/Sumforge RUQ7.ini" <<'INI'
[Ver]
EdicBotones=S
[Wizard]
Showini=S
Showavan=S
INI

Xvfb "$display" -screen 0 1280x960x24 -nolisten tcp >/dev/null 2>&1 &
pids+=($!)
export DISPLAY="$display" QT_QPA_PLATFORM=xcb
for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done
openbox >/dev/null 2>&1 &
pids+=($!)
sleep 1

# The collection the main window shows: a small worksheet with figures, fixed numbers.
"$cli" new NRP:12x3:4 ALG:3x2 TRI:6x1 --seed 2024 --title "Practice sheet" --solutions after \
  -o "$work/Practice sheet.col" >/dev/null

# Waits for a window whose title is $1 and gives its id.
window() { xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1; }
# Photographs window $1 into doc/images/$2.png.
shoot() {
  sleep 1.2
  import -window "$1" "$out/$2.png"
  echo "doc/images/$2.png"
}
keys() { xdotool key --delay 120 "$@"; sleep 0.5; }
# Clicks at x y inside window $1.
click() { xdotool mousemove --window "$1" "$2" "$3" click 1; sleep 0.6; }

"$program" "$work/Practice sheet.col" >/dev/null 2>&1 &
pids+=($!)
sleep 3                             # past the start-up picture
main=$(window "Practice sheet.col  -  .*")
xdotool windowsize "$main" 1040 800 windowmove "$main" 20 20 windowactivate --sync "$main"
sleep 2
shoot "$main" main-window

keys alt+c Up Return                # Collection > Properties of the collection...
properties=$(window "Properties of the collection")
click "$properties" 60 96           # the Solutions tab
shoot "$properties" properties
keys Escape

keys alt+f p                        # File > Print...
print=$(window "Print")
shoot "$print" print-dialog
keys Escape

# The wizard, by clicks at the places of its fixed layout (780 by 540).
next() { click "$wizard" 603 516; }
keys alt+f n                        # File > New collection...
wizard=$(window "Wizard")
shoot "$wizard" wizard-start
next
click "$wizard" 193 103             # the subject's picture
shoot "$wizard" wizard-subject
next                                # types of documents
next                                # the tree
click "$wizard" 149 70              # open "Natural numbers"
click "$wizard" 180 87              # tick its first kind
click "$wizard" 180 121             # and its third
click "$wizard" 700 150             # the amount
keys ctrl+a 5
shoot "$wizard" wizard-tree
next                                # problem and page numbers
shoot "$wizard" wizard-numbers
next                                # order and solutions
shoot "$wizard" wizard-solutions
keys Escape
