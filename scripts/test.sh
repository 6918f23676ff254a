#!/usr/bin/env bash
# Installs what is missing, builds every target with warnings as errors, and
# runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset ci >/dev/null
cmake --build --preset ci -j "$(nproc)"
ctest --preset ci -j "$(nproc)"
