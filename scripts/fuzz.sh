#!/usr/bin/env bash
# Builds one libFuzzer target with clang and runs it for SECONDS (default 600).
#   scripts/fuzz.sh TARGET [SECONDS]
# TARGET: markup, open_file, paste, reg_to_var or extract_balanced (or fuzz_<name>).
# The seed corpus in tests/fuzz/corpus/<name>/ is copied to build-fuzz/corpus/<name>/,
# where the fuzzer keeps what it finds; crashes land in build-fuzz/artifacts/<name>/.
# Exits non-zero on a crash, a leak, a sanitizer report or a hang (10 s for one input).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
name="${1:?usage: scripts/fuzz.sh TARGET [SECONDS]}"
name="${name#fuzz_}"
seconds="${2:-600}"
case "$name" in
  markup|open_file|paste|reg_to_var|extract_balanced) ;;
  *) echo "unknown target '$name'" >&2; exit 2 ;;
esac

if ! command -v clang++ >/dev/null || ! ls /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a >/dev/null 2>&1; then
  SUDO=""
  if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends clang libclang-rt-14-dev >/dev/null
fi

build="$root/build-fuzz"
export CCACHE_BASEDIR="$root"
mkdir -p "$build"
# Two targets may be started at once (one a core): one build at a time in the shared tree.
(
  flock 9
  if [ ! -f "$build/build.ninja" ]; then
    CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DSUMFORGE_FUZZ=ON >/dev/null
  fi
  cmake --build "$build" -j2 --target "fuzz_$name"
) 9>"$build/.build-lock"

corpus="$build/corpus/$name"
artifacts="$build/artifacts/$name"
mkdir -p "$corpus" "$artifacts"
if [ -d "$root/tests/fuzz/corpus/$name" ]; then
  cp -n "$root/tests/fuzz/corpus/$name"/* "$corpus"/ 2>/dev/null || true
fi
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=1:halt_on_error=1"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
cd "$build"
"$build/tests/fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
  -print_final_stats=1 -artifact_prefix="$artifacts/" "$corpus"
echo "corpus: $(ls "$corpus" | wc -l) files, $(du -sk "$corpus" | cut -f1) KiB"
