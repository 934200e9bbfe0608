#!/usr/bin/env bash
# Renders the demo pictures under docs/screenshots from a build tree:
#   scripts/screenshots.sh [BUILD_DIR]      (default: build)
# Each picture starts from fresh settings, on a 1600x1000 X server.
set -euo pipefail
cd "$(dirname "$0")/.."
demo="${1:-build}/apps/demo/tessaro-demo"
out=docs/screenshots
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

shoot() {
    local name=$1
    shift
    rm -f "$scratch/settings.dat"
    xvfb-run -a -s "-screen 0 1600x1000x24" \
        "$demo" --settings "$scratch/settings.dat" --screenshot "$out/$name" "$@" > /dev/null
    echo "$out/$name"
}

shoot demo-office2016.png --style 40 --size 1200x760
shoot demo-office2007.png --style 10 --size 1200x760
shoot demo-photoshop-darkgray.png --style 52 --size 1200x760
shoot demo-classic-office2013.png --classic --style 30 --size 1200x760
shoot quick-search.png --search "font" --size 1200x760
