#!/usr/bin/env bash
# Installs what is missing, builds every target with warnings as errors, and
# runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
# Static analysis first: it takes seconds and names the line.
cppcheck --quiet --std=c++20 --enable=warning,performance,portability --inline-suppr --library=qt \
  --error-exitcode=1 -I src src
cmake --preset ci >/dev/null
cmake --build --preset ci -j "$(nproc)"
ctest --preset ci -j "$(nproc)"
