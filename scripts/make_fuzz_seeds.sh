#!/usr/bin/env bash
# Refreshes the "real" part of the fuzz seed corpora from what the program itself writes:
# collection files made by `sumforge-cli new` and `versions` (open_file), their problem lines (reg_to_var),
# their problems as clipboard texts (paste) and their statements and solutions (markup).
#   scripts/make_fuzz_seeds.sh [path/to/sumforge-cli]
# Hand-made seeds (damaged files, broken tags) stay as they are; files written here are
# named real_*. Fixed seeds keep the output the same from run to run.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cli="${1:-$root/build/cli/sumforge-cli}"
corpus="$root/tests/fuzz/corpus"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$work}"

rm -f "$corpus"/{open_file,reg_to_var,paste,markup}/real_*

# Small collections: every module appears, two of them with figures (their pictures in the
# file's picture area), each with another place of the solutions.
make_collection() {
    local name="$1" where="$2"; shift 2
    "$cli" new "$@" --seed 4242 --solutions "$where" --title "Seeds $name" -o "$work/$name.col" >/dev/null
}
make_collection drills none NRP:12x2:3 NRP:9x1:4 ECU:1x1 LFD:1x1:3 INT:1x1:3
make_collection algebra after ALG:3x1 ALG:5x1 GA3:2x1 GA2:1x1 PES:1x1 TRI:4x1
make_collection figures end TRI:6x2 GDE:2x1 NRP:27x1:2
make_collection analysis page LFD:25x1 INT:5x1 PES:3x1 GA2:6x1 ECU:14x1 GA3:7x1 GDE:4x1
# A second version of the figures: the same routines with other numbers, as the versions
# command saves them.
mkdir -p "$work/versions"
"$cli" versions "$work/figures.col" 2 --col "$work/versions" >/dev/null
cp "$work/versions"/*-B.col "$work/version_b.col"

python3 - "$work" "$corpus" <<'PY'
import pathlib, re, sys
work, corpus = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
clip_head = b"GENPROB:NPROB=001:"
count = 0
for col in sorted(work.glob("*.col")):
    data = col.read_bytes()
    (corpus / "open_file" / f"real_{col.stem}.col").write_bytes(data)
    head = re.search(rb"#PROPARAM\((.*?)#PROPARAM\)", data, re.S).group(1)
    (corpus / "reg_to_var" / f"real_{col.stem}.txt").write_bytes(head)
    lines = head.split(b"\r\n")
    for n, m in enumerate(re.finditer(rb"#PRO(\d{3})\(#ENU\((.*?)#ENU\)#SOL\((.*?)#SOL\)#PRO\1\)", data, re.S)):
        line = lines[int(m.group(1)) - 1]
        statement, solution = m.group(2), m.group(3)
        if n == 0:
            (corpus / "paste" / f"real_{col.stem}.txt").write_bytes(
                clip_head + line[:96] + b"#ENU(" + statement + b"#ENU)#SOL(" + solution + b"#SOL)")
        (corpus / "markup" / f"real_{col.stem}_{n + 1}_statement.txt").write_bytes(statement)
        (corpus / "markup" / f"real_{col.stem}_{n + 1}_solution.txt").write_bytes(solution)
        count += 1
print(f"{count} problems written as seeds")
PY
du -sh "$corpus"/*
