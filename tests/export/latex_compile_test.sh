#!/usr/bin/env bash
# The LaTeX export of every routine of every module, with several seeds, compiles with
# pdflatex without an error or an undefined control sequence; and for problems written as
# plain lines, the LaTeX PDF shows the same numbers in the same order as the program's PDF.
set -euo pipefail
cli="$1"
fail() { echo "FAIL: $*" >&2; exit 1; }
command -v pdflatex > /dev/null || fail "pdflatex is missing (scripts/setup.sh installs texlive-latex-base)"
command -v pdftotext > /dev/null || fail "pdftotext is missing (scripts/setup.sh installs poppler-utils)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
export QT_QPA_PLATFORM=offscreen

compile() {
    local tex="$1"
    if ! pdflatex -halt-on-error -interaction=nonstopmode "$tex" > /dev/null 2>&1; then
        grep -A8 '^!' "${tex%.tex}.log" >&2 || true
        fail "pdflatex failed on $tex"
    fi
    ! grep -q 'Undefined control sequence' "${tex%.tex}.log" || fail "undefined control sequence in $tex"
    ! grep -q '^!' "${tex%.tex}.log" || fail "an error in $tex"
}

# Every routine of the catalogue, one problem each.
"$cli" catalogue | awk '$1 ~ /^KVOL_/ {print $1 ":" $2}' | sort -u > choices.txt
count=$(wc -l < choices.txt)
[ "$count" -ge 50 ] || fail "only $count routines in the catalogue"
placements=(after end page)
i=0
for seed in 11 2024 31337; do
    place=${placements[$((i % 3))]}
    i=$((i + 1))
    "$cli" new $(cat choices.txt) --seed "$seed" --solutions "$place" --title "Every routine & more, seed $seed" \
        -o "all-$seed.col" > /dev/null
    "$cli" latex "all-$seed.col" -o "all-$seed.tex" > /dev/null
    grep -q '\\end{document}' "all-$seed.tex" || fail "all-$seed.tex is not whole"
    problems=$(grep -c '^% Problem ' "all-$seed.tex")
    [ "$problems" -eq "$count" ] || fail "all-$seed.tex holds $problems problems, not $count"
    compile "all-$seed.tex"
    pdftotext "all-$seed.pdf" "all-$seed.txt"
    grep -q "seed $seed" "all-$seed.txt" || fail "the title is missing from all-$seed.pdf"
    grep -q "Solution" "all-$seed.txt" || fail "the solutions are missing from all-$seed.pdf"
done

# The numbers of plain-line problems (columns allowed): routines whose statements and
# solutions hold no construct and no script but the thin space between digit groups.
sample=()
while read -r choice; do
    "$cli" new "$choice" --seed 5 --solutions after --page-numbers 0 -o one.col > /dev/null 2>&1 || continue
    LC_ALL=C sed 's/KVOL_[A-Z0-9_]*//g' one.col > one.txt
    if ! LC_ALL=C grep -aqE '#(COC|ATX|SPB|SQR|CUR|RAD|POT|EXP|NES|RWS|CEQ|INT|IMG|TST|VEC|VED|SEG|UDL|SED|AND|ARC|TD[XUD]|REC)\(|&E|[_^][^_^ ]' one.txt; then
        sample+=("$choice")
    fi
    [ "${#sample[@]}" -ge 12 ] && break
done < choices.txt
[ "${#sample[@]}" -ge 3 ] || fail "only ${#sample[@]} plain-line routines found for the comparison"
"$cli" new "${sample[@]/%/x2}" --seed 99 --solutions after --page-numbers 0 -o sample.col --pdf own.pdf > /dev/null
"$cli" latex sample.col -o sample.tex > /dev/null
compile sample.tex
# In the order the pages draw their text: the columns of a line read across, in both.
pdftotext -raw own.pdf own.txt
pdftotext -raw sample.pdf sample.txt
grep -oE '[0-9]+' own.txt > own-numbers.txt
grep -oE '[0-9]+' sample.txt > tex-numbers.txt
[ "$(wc -l < own-numbers.txt)" -ge 20 ] || fail "too few numbers in the sample"
if ! cmp -s own-numbers.txt tex-numbers.txt; then
    diff own-numbers.txt tex-numbers.txt | head -20 >&2
    fail "the numbers of the LaTeX PDF differ from the program's PDF (sample: ${sample[*]})"
fi
echo "OK: $count routines x 3 seeds compiled; ${#sample[@]} plain-line routines with the same numbers"
