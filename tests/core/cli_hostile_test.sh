#!/usr/bin/env bash
# The command-line tool against hostile and unlucky files: links planted at the temporary
# name, write-protected and linked targets, full disks, pipes and devices, missing files,
# unknown generators, and titles that hold the file's own tags.
set -euo pipefail
cli="$1"
work="$(mktemp -d)"
small=""
cleanup() {
    [ -n "$small" ] && umount "$small" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
cd "$work"
export QT_QPA_PLATFORM=offscreen
fail() { echo "FAIL: $*" >&2; exit 1; }
mode() { stat -c %a "$1"; }

# A link planted at the old temporary name is not followed; a file there survives.
echo "not yours" > victim.txt
ln -s "$work/victim.txt" s.colx
"$cli" new NRP:12x3 --seed 5 -o s.col > /dev/null
[ "$(cat victim.txt)" = "not yours" ] || fail "the save wrote through a planted link"
[ -L s.colx ] || fail "the planted link was replaced"
[ -f s.col ] && [ ! -L s.col ] || fail "s.col is not a plain file"
echo "notes" > t.colx
"$cli" new NRP:12x3 --seed 5 -o t.col > /dev/null
[ "$(cat t.colx)" = "notes" ] || fail "a file at the old temporary name was destroyed"

# A write-protected collection is refused and stays as it was; modes are kept.
cp s.col ro.col
chmod 444 ro.col
before=$(md5sum < ro.col)
if "$cli" new NRP:12x4 --seed 6 -o ro.col 2> err.txt; then fail "a write-protected file was replaced"; fi
grep -q "Write-protected" err.txt || fail "no write-protected message: $(cat err.txt)"
[ "$(md5sum < ro.col)" = "$before" ] || fail "the write-protected file changed"
[ "$(mode ro.col)" = 444 ] || fail "the write-protected file changed its mode"
cp s.col private.col
chmod 600 private.col
"$cli" new NRP:12x4 --seed 6 -o private.col > /dev/null
[ "$(mode private.col)" = 600 ] || fail "a 600 file became $(mode private.col)"
if "$cli" render s.col --pdf ro.col 2> err.txt; then fail "a write-protected PDF target was replaced"; fi
[ "$(md5sum < ro.col)" = "$before" ] || fail "the write-protected file changed under --pdf"

# Saving through a link writes its target and keeps the link.
cp s.col real.col
ln -s real.col linked.col
"$cli" new NRP:12x7 --seed 8 -o linked.col > /dev/null
[ -L linked.col ] || fail "the link became a plain file"
"$cli" render real.col --pdf real.pdf | grep -q "^7 problems" || fail "the link's target was not written"

# Pipes and devices are refused at once.
mkfifo fifo.col
if timeout 20 "$cli" render fifo.col --pdf x.pdf 2> err.txt; then fail "a pipe rendered"; fi
grep -q "Bad file." err.txt || fail "a pipe did not say Bad file.: $(cat err.txt)"
ln -s /dev/zero zero.col
if timeout 20 "$cli" render zero.col --pdf x.pdf 2> err.txt; then fail "a device rendered"; fi
grep -q "Bad file." err.txt || fail "a device did not say Bad file."
[ ! -e x.pdf ] || fail "a refused render wrote a PDF"

# Missing files say why; a missing folder is said once.
if "$cli" render missing.col --pdf x.pdf 2> err.txt; then fail "a missing file rendered"; fi
grep -q "No such file" err.txt || fail "no reason for a missing file: $(cat err.txt)"
if "$cli" render s.col --pdf nofolder/x.pdf 2> err.txt; then fail "a PDF into a missing folder succeeded"; fi
[ "$(wc -l < err.txt)" = 1 ] || fail "a missing folder gave $(wc -l < err.txt) lines"
if "$cli" markup "x" -o nofolder/x.png 2> err.txt; then fail "a PNG into a missing folder succeeded"; fi
[ "$(wc -l < err.txt)" = 1 ] || fail "a missing folder gave $(wc -l < err.txt) lines for markup"
if "$cli" new NRP:12x3 -o nofolder/x.col 2> err.txt; then fail "a collection into a missing folder succeeded"; fi
[ "$(wc -l < err.txt)" = 1 ] || fail "a missing folder gave $(wc -l < err.txt) lines for new"

# Unknown generators and zooms the window does not have are errors.
if "$cli" generate KVOL_NOPE 0121234567050101 > out.txt 2> err.txt; then fail "an unknown module exited 0"; fi
if "$cli" generate KVOL_MATH_NRP 9991234567050101 > out.txt 2> err.txt; then fail "an unknown routine exited 0"; fi
"$cli" generate KVOL_MATH_NRP 0121234567050101 > out.txt || fail "a good code failed"
set +e
"$cli" markup "x" -o z.png --zoom 0.0001 2> /dev/null; status=$?
set -e
[ "$status" = 2 ] || fail "--zoom 0.0001 gave status $status"

# Whatever is saved opens again.
for title in 'x#CABECERA)y' 'a#BINDIR(b' '#TITULO)' 'p#PRO001)q'; do
    "$cli" new NRP:12x3 --seed 9 --title "$title" --prefix "$title" --suffix "$title" -o rt.col > /dev/null
    "$cli" render rt.col --pdf rt.pdf > /dev/null || fail "a collection titled '$title' does not open"
done

# A full disk leaves the old PDF and collection whole and says so.
mkdir small
if mount -t tmpfs -o size=64k tmpfs small 2> /dev/null; then
    small="$work/small"
    "$cli" markup "x" --pdf small/good.pdf -o small/good.png > /dev/null
    cp small/good.pdf good.pdf
    head -c 1M /dev/zero > small/filler 2> /dev/null || true
    "$cli" new NRP:12x40:20 --seed 3 -o big.col > /dev/null
    if "$cli" render big.col --pdf small/good.pdf 2> err.txt; then fail "a PDF on a full disk succeeded"; fi
    cmp -s good.pdf small/good.pdf || fail "the good PDF was damaged"
    grep -q "No space" err.txt || fail "no full-disk reason: $(cat err.txt)"
    if "$cli" new NRP:12x40:20 --seed 3 -o small/big.col --pdf small/new.pdf 2> err.txt; then
        fail "a collection on a full disk succeeded"
    fi
    [ ! -e small/big.col ] && [ ! -e small/new.pdf ] || fail "a failed save left a file"
    [ "$(ls -A small | sort | tr '\n' ' ')" = "filler good.pdf good.png " ] || fail "left: $(ls -A small)"
else
    echo "note: no small filesystem can be mounted here; the full-disk case is left to the unit tests"
fi
echo "ok"
