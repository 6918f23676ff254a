#!/usr/bin/env bash
# Takes the README's screenshots in docs/ under a virtual display: the main
# window on the Rasi chart in the South, North and East styles, and the birth
# form. Works on a copy of the data in a temporary folder, so the user's own
# charts and settings are never touched. Rerun it after changing a window.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
missing=()
for p in xvfb xauth imagemagick xdotool; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  SUDO=(); [ "$(id -u)" -eq 0 ] || SUDO=(sudo)
  "${SUDO[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
cmake --preset release >/dev/null
cmake --build --preset release -j "$(nproc)" --target kelvaro kelvaro-cli

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export XDG_DATA_HOME="$work/data" XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
mkdir -p docs
xvfb-run -a -s "-screen 0 1280x800x24" bash scripts/screenshot-session.sh "$PWD/build/release" "$PWD/docs"
ls -l docs/*.png
