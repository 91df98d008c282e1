#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test.
#   ./test.sh                     the optimised build in build/, the user's manual checked too
#   ./test.sh --sanitize          the AddressSanitizer + UndefinedBehaviorSanitizer build in
#                                 build-sanitize/, every test; any sanitizer report fails
#   ./test.sh --sanitize --fast   the same build without the generator sweeps
set -euo pipefail
cd "$(dirname "$0")"
# Each phase prints its time, so that a slow run shows where the time went.
started=$SECONDS
phase() { echo "== $1: $((SECONDS - started)) s"; started=$SECONDS; }
sanitize=0
fast=0
for arg in "$@"; do
  case "$arg" in
    --sanitize) sanitize=1 ;;
    --fast) fast=1 ;;
    *) echo "usage: $0 [--sanitize [--fast]]" >&2; exit 2 ;;
  esac
done
./scripts/setup.sh
phase "setup"
export QT_QPA_PLATFORM=offscreen
# No two units of a checked folder include each other, however indirectly.
./scripts/check_include_cycles.py
if [ "$sanitize" -eq 0 ]; then
  ./scripts/build.sh build
  phase "build"
  # The user's manual is no part of the program's build; its own check fails on a broken
  # link or a missing picture.
  cmake --build build --target manual_check
  phase "manual"
  cd build
  ctest --output-on-failure -j2 --timeout 900
  phase "tests"
  exit 0
fi

root="$(pwd)"
# A report of either sanitizer ends the test program with a failure. Qt's font code keeps
# a few allocations until exit; the suppressions name system libraries only. Set before
# the build too: the build lists each test program's tests by running it.
export ASAN_OPTIONS="halt_on_error=1:detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1:check_initialization_order=1"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
# The plain run walks every generator sweep whole; under the sanitizers, whose programs run
# several times slower, 15 % of each sweep (never fewer than 310 seeds) finds the
# memory and undefined-behaviour faults and keeps the whole check within its time.
export SUMFORGE_SWEEP_FRACTION=0.15
# -O1 with line tables only: the sanitizers' reports keep file and line, and the tree
# builds in about half the time of -O2 with full debug information.
./scripts/build.sh build-sanitize -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -g1 -DNDEBUG" -DSUMFORGE_SANITIZE=ON -DSUMFORGE_BENCH=OFF
phase "sanitizer build"
cd build-sanitize
# Each test program runs whole, two at a time: one process per program instead of one per
# test keeps the sanitizers' start-up cost small. --fast leaves the generator sweeps out.
# The longest programs start first, so that the two lanes end together.
programs=$(find tests -name '*_tests' -type f -perm -u+x | sort |
  awk '{w = /generators_tests$/ ? 0 : /data_tests$/ ? 1 : /core_tests$/ ? 2 : 3; print w, $0}' |
  sort -k1,1n -s | cut -d' ' -f2-)
if [ "$fast" -eq 1 ]; then programs=$(echo "$programs" | grep -v generators_tests || true); fi
mkdir -p sanitize-logs
status=0
printf '%s\n' $programs | xargs -P2 -I{} sh -c 'name=$(basename {}); if (cd "$(dirname {})" && "./$name" --gtest_brief=1) >sanitize-logs/$name.log 2>&1; then echo "passed: $name"; else echo "FAILED: $name (build-sanitize/sanitize-logs/$name.log)"; tail -n 60 sanitize-logs/$name.log; exit 1; fi' || status=1
phase "sanitizer test programs"
# The command-line tool end to end, under the sanitizers as well.
ctest --output-on-failure --timeout 1800 -R '^cli_' || status=1
phase "sanitizer command-line tests"
exit $status
