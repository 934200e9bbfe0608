#!/usr/bin/env bash
# Renders every picture under docs/screenshots from a build tree:
#   scripts/screenshots.sh [BUILD_DIR]      (default: build)
# The demo's windows start from fresh settings on a 1600x1000 X server; the
# editors and the style sheet are drawn by their tests.
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build}"
demo="$build/apps/demo/tessaro-demo"
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

# Runs one test function that saves a picture when its variable names a place;
# the editors are drawn on the same X server as the demo's windows.
draw() {
    local name=$1 test=$2 function=$3 variable=$4 value=$5
    env "$variable=$value" xvfb-run -a -s "-screen 0 1600x1000x24" "$build/tests/$test" "$function" > /dev/null
    echo "$out/$name"
}

shoot demo-office2016.png --style 40 --size 1200x760
shoot demo-office2007.png --style 10 --size 1200x760
shoot demo-photoshop-darkgray.png --style 52 --size 1200x760
shoot demo-classic-office2013.png --classic --style 30 --size 1200x760
shoot quick-search.png --search "font" --size 1200x760
draw ribbon-editor.png customize/ribbon/tst_ribboneditorlook editorOverTheDemoRibbon TESSARO_SCREENSHOT_DIR "$out"
draw quick-access-editor.png customize/quickpanel/tst_quickpanelwidget screenshot TESSARO_SCREENSHOT_DIR "$out"
draw "customize-*-tab.png" customize/tst_customizedlg screenshots TESSARO_SCREENSHOT_DIR "$out"
draw "demo-customize-*.png" demo/customize/tst_democustomize screenshots TESSARO_SCREENSHOT_DIR "$out"
# The style sheet is drawn offscreen, as the README says.
TESSARO_STYLE_SHEET="$out/styles.png" QT_QPA_PLATFORM=offscreen "$build/tests/qtitan/bar/tst_qtitanthemes" referenceSheet > /dev/null
echo "$out/styles.png"
