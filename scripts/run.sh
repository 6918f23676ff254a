#!/usr/bin/env bash
# Installs what is missing, builds the program and starts the desktop program
# on the chart saved last (the sample chart, Velnesh, 14 July 1965, 14:15,
# Hyderabad, at a first start). Where there is no display it says so and
# prints the sample chart's summary from the command-line tool instead.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release -j "$(nproc)" --target kelvaro kelvaro-cli
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
  echo "run: no display to show the desktop program on; the sample chart's summary from kelvaro-cli follows."
  exec ./build/release/src/cli/kelvaro-cli summary --date 14/07/1965 --time 14:15 --lat 17N20 --lon 78E30 \
    --tz 5.5E --name Velnesh --gender Male --city "Hyderabad (A.P)" --country India
fi
exec ./build/release/src/shell/kelvaro "$@"
