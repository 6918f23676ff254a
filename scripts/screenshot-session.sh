#!/usr/bin/env bash
# Runs inside the virtual display of screenshots.sh: starts the program once
# per chart style, chooses the Rasi view with the mouse as a user does, and
# photographs the window; then opens the birth form and the preferences with
# their accelerators.
set -euo pipefail
build="$1" docs="$2"
cli="$build/src/cli/kelvaro-cli"
kelvaro="$build/src/shell/kelvaro"

start() {
  "$kelvaro" & pid=$!
  # The caption holds parentheses, which the search reads as a pattern.
  window=$(timeout 20 xdotool search --sync --name "^Kelvaro - Kelvaro Basic" | head -1)
  sleep 1.5
}
stop() { kill "$pid"; wait "$pid" 2>/dev/null || true; }
# The tree lists its views from the top left: Birth Details, then Rasi.
choose_rasi() { xdotool mousemove 30 59 click 1; sleep 0.7; }

for style in South North East; do
  "$cli" prefs set chart-style "$style" >/dev/null
  start
  choose_rasi
  import -window "$window" "$docs/main-$(echo "$style" | tr 'A-Z' 'a-z').png"
  stop
done

"$cli" prefs set chart-style South >/dev/null
start
xdotool windowfocus --sync "$window" key alt+e
form=$(timeout 20 xdotool search --sync --name '^Enter Birth Details$' | head -1)
sleep 1
# A place from the finder, so that the form shows the clock offset it chose.
xdotool windowfocus --sync "$form" key alt+p
xdotool type --delay 80 Kolkata
sleep 0.7
xdotool key Down Return
sleep 0.7
import -window "$form" "$docs/birth-form.png"
xdotool windowfocus --sync "$form" key Escape
sleep 0.5
# Tools, Preferences, by their accelerators.
xdotool windowfocus --sync "$window" key alt+t p
prefs=$(timeout 20 xdotool search --sync --name '^Preferences$' | head -1)
sleep 1
# The custom ayanamsa, to show its two fields.
xdotool windowfocus --sync "$prefs" type Cu
sleep 0.7
import -window "$prefs" "$docs/preferences.png"
stop
