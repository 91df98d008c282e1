#!/usr/bin/env bash
# The include-circle check finds a circle of two units, one through a .cpp only, and a
# longer one, and passes a tree whose arrows run one way.
set -u
script="$1"
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
fail() { echo "FAILED: $1"; exit 1; }

mkdir -p "$tree/one" "$tree/two" "$tree/line"
# one/: a.cpp includes b.h, b.h includes a.h.
printf '#pragma once\n' > "$tree/one/a.h"
printf '#include "one/a.h"\n#include "one/b.h"\n' > "$tree/one/a.cpp"
printf '#pragma once\n#include "one/a.h"\n' > "$tree/one/b.h"
# two/: x -> y -> z -> x through headers, and a unit beside them.
printf '#pragma once\n#include "two/y.h"\n' > "$tree/two/x.h"
printf '#pragma once\n#include "two/z.h"\n' > "$tree/two/y.h"
printf '#include "two/x.h"\n' > "$tree/two/z.cpp"
printf '#pragma once\n' > "$tree/two/z.h"
printf '#pragma once\n#include "two/x.h"\n' > "$tree/two/w.h"
# line/: p -> q -> r, and includes of other folders.
printf '#pragma once\n#include "line/q.h"\n#include "one/a.h"\n' > "$tree/line/p.h"
printf '#pragma once\n#include "line/r.h"\n#include <vector>\n' > "$tree/line/q.h"
printf '#pragma once\n' > "$tree/line/r.h"
printf '#include "line/r.h"\n' > "$tree/line/r.cpp"
printf '#include "line/q.h"\n' > "$tree/line/q.cpp"

out=$("$script" --root "$tree" one); status=$?
[ $status -eq 1 ] || fail "one/: status $status"
echo "$out" | grep -q "one/a -> one/b" || fail "one/: $out"

out=$("$script" --root "$tree" two); status=$?
[ $status -eq 1 ] || fail "two/: status $status"
echo "$out" | grep -q "two/z -> two/x" || fail "two/: $out"
echo "$out" | grep -q "two/w" && fail "two/: w is on no circle: $out"

out=$("$script" --root "$tree" line); status=$?
[ $status -eq 0 ] || fail "line/: status $status: $out"
echo "passed"
