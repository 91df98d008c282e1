#!/usr/bin/env bash
# Installs what the build needs from Debian's packages, once; quiet when all is there.
set -euo pipefail

PACKAGES=(g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-base-dev-tools libgtest-dev
          libbenchmark-dev fonts-liberation2 fonts-dejavu-core fonts-stix xvfb xauth poppler-utils
          desktop-file-utils appstream-util shared-mime-info qt6-svg-dev
          texlive-latex-base texlive-latex-recommended)

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  SUDO=""
  if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
