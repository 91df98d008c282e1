#!/usr/bin/env bash
# The command-line tool end to end: a new collection written as .col and PDF, opened again
# and rendered to the same pages; new with a fixed seed writing the same bytes as it
# always has; and refusals that write nothing.
set -euo pipefail
cli="$1"
data="$2"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
export QT_QPA_PLATFORM=offscreen
fail() { echo "FAIL: $*" >&2; exit 1; }

"$cli" new NRP:12x20:8 --title "Practice" --solutions end --seed 321 -o p.col --pdf p.pdf > out.txt
grep -q "^20 problems, " out.txt || fail "new did not report 20 problems"
head -c 10 p.col | grep -q "#CABECERA(" || fail "p.col lacks its head"
grep -q "#BINDIR(00000000#BINDIR)" p.col || fail "p.col lacks the empty directory pointer"

"$cli" render p.col --pdf q.pdf --png pages > out2.txt
cmp -s out.txt out2.txt || fail "render found other pages than new"
pages=$(sed -n 's/^20 problems, \([0-9]*\) pages$/\1/p' out.txt)
[ "$(ls pages | wc -l)" = "$pages" ] || fail "expected $pages PNG pages"

pdftotext -layout p.pdf p.txt
pdftotext -layout q.pdf q.txt
cmp -s p.txt q.txt || fail "the texts of p.pdf and q.pdf differ"
pdftoppm -r 40 -png p.pdf pp
pdftoppm -r 40 -png q.pdf qq
for f in pp-*.png; do cmp -s "$f" "qq-${f#pp-}" || fail "page $f differs"; done

grep -q "Practice" p.txt || fail "no title"
grep -q "Solutions:" p.txt || fail "no solutions heading"
grep -q "^ *1) " p.txt || fail "no problem 1"
grep -q "20)" p.txt || fail "no problem 20"
# Each page ends with its number, centred at the bottom.
page_numbers=$(awk 'BEGIN{RS="\f"} NF{n=split($0,l,"\n"); for(i=n;i>0;i--) if (l[i] ~ /[^ ]/) {gsub(/ /,"",l[i]); print l[i]; break}}' p.txt | tr '\n' ' ')
expected=$(seq 1 "$pages" | tr '\n' ' ')
[ "$page_numbers" = "$expected" ] || fail "page numbers '$page_numbers', expected '$expected'"

# The records, their order, their codes and their texts stay as they were. These two
# collections carry no pictures, so that a redrawn figure does not change them.
"$cli" new NRP:12x20:8 --title "Practice" --solutions end --seed 321 -o drill.col > /dev/null
cmp drill.col "$data/new_drill_seed321.col" || fail "the drill collection changed"
"$cli" new NRP:12x3:5 ALG:1x4 NRP:1x2 LFD:2x3:4 --shuffled --seed 99 --title "Mixed" --prefix "No " \
  --first-problem 4 -o mixed.col > /dev/null
cmp mixed.col "$data/new_mixed_seed99.col" || fail "the shuffled mixed collection changed"

# Refusals write nothing.
if "$cli" new NRP:999x2 -o bad.col 2> err.txt; then fail "an unknown routine was accepted"; fi
grep -q "no generator" err.txt || fail "no message for an unknown routine"
[ ! -e bad.col ] || fail "a refused new wrote a file"
if "$cli" new NRP:12x2 -o bad.txt 2> err.txt; then fail "a name without .col was accepted"; fi
if "$cli" new NRP:12x99 NRP:12x2 -o bad.col 2> err.txt; then fail "a generator chosen twice was accepted"; fi
head -c 300 p.col > cut.col
if "$cli" render cut.col --pdf cut.pdf 2> err.txt; then fail "a damaged file rendered"; fi
grep -q "Bad file." err.txt || fail "no Bad file. message"
[ ! -e cut.pdf ] || fail "a damaged file wrote a PDF"
echo "ok"
