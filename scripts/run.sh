#!/usr/bin/env bash
# Installs what is missing, builds the program and shows the sample chart
# (Velnesh, 14 July 1965, 14:15, Hyderabad). Until the desktop program exists
# this prints the sample chart's positions from the command-line tool.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release -j "$(nproc)" --target kelvaro-cli
./build/release/src/cli/kelvaro-cli positions --date 14/07/1965 --time 14:15 \
  --lat 17N20 --lon 78E30 --tz 5.5E --ayanamsa Lahiri "$@"
