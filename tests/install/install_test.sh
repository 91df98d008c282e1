#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks what a teacher's machine gets.
#   install_test.sh BUILD_DIR VERSION MANUAL_FILE BUILD_CLI
set -euo pipefail
build="$1"; version="$2"; manual="$3"; build_cli="$4"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="$work"
fail() { echo "FAIL: $*" >&2; exit 1; }
prefix="$work/root/usr"
cmake --install "$build" --prefix "$prefix" > "$work/install.log"

# The tree.
for f in bin/sumforge bin/sumforge-cli share/sumforge/Mathematics.jpg share/sumforge/img/m_tales.gif \
         share/sumforge/screenshots/main-window.png share/applications/sumforge.desktop \
         share/metainfo/sumforge.metainfo.xml share/mime/packages/sumforge.xml \
         share/man/man1/sumforge.1 share/man/man1/sumforge-cli.1 \
         share/icons/hicolor/scalable/apps/sumforge.svg \
         share/icons/hicolor/scalable/mimetypes/application-x-sumforge-collection.svg; do
  [ -s "$prefix/$f" ] || fail "$f is not installed"
done
for size in 16 22 24 32 48 64 128 256; do
  for f in apps/sumforge.png mimetypes/application-x-sumforge-collection.png; do
    png="$prefix/share/icons/hicolor/${size}x${size}/$f"
    [ -s "$png" ] || fail "no ${size}x${size}/$f"
    file_size=$(od -An -tu1 -j16 -N8 "$png" | awk '{print $1*16777216+$2*65536+$3*256+$4 "x" $5*16777216+$6*65536+$7*256+$8}')
    [ "$file_size" = "${size}x${size}" ] || fail "${size}x${size}/$f is $file_size"
  done
done
[ -x "$prefix/bin/sumforge" ] && [ -x "$prefix/bin/sumforge-cli" ] || fail "the programs are not executable"
[ "$(ls "$prefix/share/sumforge/img" | wc -l)" -ge 30 ] || fail "the figure pictures are missing"
[ ! -e "$prefix/share/sumforge/img/src" ] || fail "the figures' sources were installed"
# The manual travels when it has been built (target manual), beside the pictures.
if [ -f "$build/doc/manual/$manual" ]; then
  [ -s "$prefix/share/sumforge/$manual" ] || fail "the built manual is not installed"
  [ -s "$prefix/share/doc/sumforge/html/index.html" ] || fail "the manual's HTML is not installed"
fi

# The version from the one place in CMake, in both programs and the man pages.
[ "$("$prefix/bin/sumforge-cli" --version)" = "sumforge-cli $version" ] || fail "sumforge-cli --version"
[ "$("$prefix/bin/sumforge" --version)" = "sumforge $version" ] || fail "sumforge --version"
"$prefix/bin/sumforge-cli" --help | grep -q "^Usage: sumforge-cli" || fail "sumforge-cli --help"
grep -q "Sumforge $version" "$prefix/share/man/man1/sumforge.1" || fail "the man page lacks the version"
grep -q "Sumforge $version" "$prefix/share/man/man1/sumforge-cli.1" || fail "the cli man page lacks the version"

# The installed tool, run from a folder without any data, draws the figures from the
# installed pictures: its pages equal those of the build's tool, and differ once the
# pictures are gone. Each run has a fresh per-user folder, whose "temp" pictures (those
# that opened collection files carry) would stand in for missing ones.
mkdir "$work/run" && cd "$work/run"
figures=(TRI:6x2 GDE:2x2 --seed 11 --title "Figures")
XDG_DATA_HOME="$work/user1" "$prefix/bin/sumforge-cli" new "${figures[@]}" -o installed.col --pdf installed.pdf > /dev/null
XDG_DATA_HOME="$work/user2" "$build_cli" new "${figures[@]}" --pdf built.pdf > /dev/null
mv "$prefix/share/sumforge/img" "$work/img-away"
XDG_DATA_HOME="$work/user3" "$prefix/bin/sumforge-cli" new "${figures[@]}" --pdf bare.pdf > /dev/null
mv "$work/img-away" "$prefix/share/sumforge/img"
for name in installed built bare; do pdftoppm -r 50 -png "$name.pdf" "$name"; done
cmp -s installed-1.png built-1.png || fail "the installed tool drew the figures otherwise than the build's"
if cmp -s installed-1.png bare-1.png; then fail "the page is the same without the installed pictures"; fi
XDG_DATA_HOME="$work/user4" "$prefix/bin/sumforge-cli" render installed.col --pdf rendered.pdf > /dev/null
[ -s rendered.pdf ] || fail "the installed tool did not render its collection"

# The desktop entry, the file type and the software-centre description.
if command -v desktop-file-validate > /dev/null; then
  desktop-file-validate "$prefix/share/applications/sumforge.desktop" || fail "desktop-file-validate"
else
  echo "SKIPPED: desktop-file-validate is missing (Debian package desktop-file-utils)"
fi
if command -v appstream-util > /dev/null; then
  appstream-util validate-relax --nonet "$prefix/share/metainfo/sumforge.metainfo.xml" || fail "appstream-util"
else
  echo "SKIPPED: appstream-util is missing (Debian package appstream-util)"
fi
grep -q "^Exec=sumforge %F" "$prefix/share/applications/sumforge.desktop" || fail "the entry does not start sumforge"
grep -q "^MimeType=application/x-sumforge-collection;" "$prefix/share/applications/sumforge.desktop" ||
  fail "the entry does not open collection files"
grep -q "file:///usr/share/sumforge/screenshots/main-window.png" "$prefix/share/metainfo/sumforge.metainfo.xml" ||
  fail "the description's screenshot is not the installed one"
if command -v update-mime-database > /dev/null; then
  XDG_DATA_DIRS="$prefix/share" update-mime-database "$prefix/share/mime" > "$work/mime.log" 2>&1 || fail "update-mime-database: $(cat "$work/mime.log")"
  [ ! -s "$work/mime.log" ] || fail "update-mime-database: $(cat "$work/mime.log")"
  grep -q "application/x-sumforge-collection:\*\.col" "$prefix/share/mime/globs2" || fail "*.col is not a collection"
  grep -q "application/x-sumforge-collection:application-x-sumforge-collection" "$prefix/share/mime/generic-icons" \
    "$prefix/share/mime/icons" 2>/dev/null || fail "the file type has no icon"
else
  echo "SKIPPED: update-mime-database is missing (Debian package shared-mime-info)"
fi
echo "installed tree checked in $prefix"
