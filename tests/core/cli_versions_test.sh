#!/usr/bin/env bash
# Versions and answer keys with the command-line tool: the files each option asks for, the
# same versions every time, letters in the titles, Letter paper and the name line; and
# refusals that write nothing.
set -euo pipefail
cli="$1"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
export QT_QPA_PLATFORM=offscreen
fail() { echo "FAIL: $*" >&2; exit 1; }

"$cli" new NRP:12x3:6 ECU:2x4:2 --title "Worksheet 3" --seed 99 -o w.col > /dev/null
mkdir out
"$cli" versions w.col 4 --pdf out/v.pdf --col cols > out.txt
for l in A B C D; do
  [ -s "out/v-$l.pdf" ] || fail "no out/v-$l.pdf"
  [ -s "out/v-$l-key.pdf" ] || fail "no out/v-$l-key.pdf"
  [ -s "cols/w-$l.col" ] || fail "no cols/w-$l.col"
  pdftotext -layout "out/v-$l.pdf" "s-$l.txt"
  pdftotext -layout "out/v-$l-key.pdf" "k-$l.txt"
  grep -q "Worksheet 3 — $l" "s-$l.txt" || fail "sheet $l lacks its lettered title"
  grep -q "Worksheet 3 — $l — Answer key" "k-$l.txt" || fail "key $l lacks its title"
  grep -q "Calculate" "k-$l.txt" && fail "key $l holds a statement"
  grep -q "Calculate" "s-$l.txt" || fail "sheet $l lacks its statements"
done
[ ! -e out/v-E.pdf ] || fail "a fifth version was written"
cmp -s s-A.txt s-B.txt && fail "versions A and B are the same"
# Each version's file opens and renders to the pages the versions command wrote.
"$cli" render cols/w-C.col --pdf c.pdf > /dev/null
pdftotext -layout c.pdf c.txt
cmp -s c.txt s-C.txt || fail "the collection file of version C renders other pages"

# The same collection gives the same versions.
"$cli" versions w.col 4 --sheets-only --pdf again > /dev/null
for l in A B C D; do
  pdftotext -layout "again-$l.pdf" "a-$l.txt"
  cmp -s "a-$l.txt" "s-$l.txt" || fail "version $l came out differently the second time"
done
[ ! -e again-A-key.pdf ] || fail "--sheets-only wrote a key"
"$cli" versions w.col 2 --key-only --pdf keys > /dev/null
[ -s keys-B-key.pdf ] && [ ! -e keys-B.pdf ] || fail "--key-only wrote the wrong files"

# Letter paper and the name line, on new with versions.
"$cli" new NRP:12x2:4 --title "Quiz" --seed 5 --versions 2 --paper letter --name-line every --pdf q > out.txt
pdfinfo q-A.pdf | grep -q "612 x 792 pts (letter)" || fail "not on Letter paper"
pdftotext -layout q-B.pdf qb.txt
grep -q "Name: _* *Class: _* *Date: _*" qb.txt || fail "no name line"
"$cli" render w.col --pdf a4.pdf > /dev/null
pdfinfo a4.pdf | grep -q "(A4)" || fail "render is not on A4 by default"

# Refusals write nothing.
if "$cli" versions w.col 1 --pdf bad 2> err.txt; then fail "one version was accepted"; fi
grep -q "2 to 26" err.txt || fail "no message for a count out of range"
if "$cli" versions w.col 27 --pdf bad 2> err.txt; then fail "27 versions were accepted"; fi
if "$cli" versions w.col 3 2> err.txt; then fail "versions without output was accepted"; fi
if "$cli" versions w.col 3 --pdf bad --paper legal 2> err.txt; then fail "legal paper was accepted"; fi
grep -q "a4 or letter" err.txt || fail "no message for a bad paper"
if "$cli" new NRP:12x2 --key-only --pdf bad.pdf 2> err.txt; then fail "--key-only without --versions was accepted"; fi
ls bad* 2> /dev/null && fail "a refused call wrote a file"
head -c 300 w.col > cut.col
if "$cli" versions cut.col 2 --pdf cut 2> err.txt; then fail "a damaged file made versions"; fi
grep -q "Bad file." err.txt || fail "no Bad file. message"
ls cut-* 2> /dev/null && fail "a damaged file wrote versions"
echo "ok"
