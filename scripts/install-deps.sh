#!/usr/bin/env bash
# Installs the Debian packages the build needs, and only those that are missing.
# Safe to run any number of times. Uses apt-get as root, or through sudo.
set -euo pipefail

packages=(
  g++ cmake ninja-build pkg-config
  libsqlite3-dev libsqlitecpp-dev
  libcli11-dev nlohmann-json3-dev libfmt-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  cppcheck
  tzdata libhowardhinnant-date-dev zlib1g-dev gzip
  qt6-base-dev qt6-svg-dev libgl-dev
  fonts-dejavu-core fonts-liberation2 fonts-lohit-deva
  poppler-utils
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q '^install ok installed$'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  echo "install-deps: all packages present"
  exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
  SUDO=()
elif command -v sudo >/dev/null 2>&1; then
  SUDO=(sudo)
else
  echo "install-deps: need root or sudo to install: ${missing[*]}" >&2
  exit 1
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${SUDO[@]}" apt-get update -qq
"${SUDO[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
