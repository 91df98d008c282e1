#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program.
set -euo pipefail
cd "$(dirname "$0")"
./scripts/setup.sh
./scripts/build.sh build
if [ -x build/app/sumforge ]; then
  exec build/app/sumforge "$@"
fi
# Until the window exists, the command-line tool is the program.
exec build/cli/sumforge-cli "${@:-help}"
