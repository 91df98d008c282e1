#!/usr/bin/env bash
# Draws the reference page pictures again (tests/core/page_pictures/*.png) after an intended
# change of the page's look. Look at them before committing them.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$root/build}"
"$root/scripts/build.sh" "$build" >/dev/null
cd "$build/tests/core"
SUMFORGE_RENEW_PAGE_PICTURES=1 QT_QPA_PLATFORM=offscreen ./core_tests --gtest_filter='EveryModule/PagePictures.*' >/dev/null
ls -l "$root/tests/core/page_pictures"
