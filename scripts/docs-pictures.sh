#!/usr/bin/env bash
# Draws the pictures of the documentation again: docs-pictures.sh
# They show the sample resources and a change of them. A browser scales the contact sheet to the width of a page.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --browser
./scripts/build.sh release tarnis-gallery
gallery=$PWD/build/release/Gallery/tarnis-gallery
create_work_folder
start_screen

# Writes a picture of a page in the browser's window: photograph PAGE HEIGHT PICTURE
photograph() {
  timeout 60 chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync --hide-scrollbars \
    --user-data-dir="$work/profile" --blink-settings=preferredColorScheme=1 --force-device-scale-factor=1 \
    --window-size="1280,$2" --screenshot="$3" "file://$1" >>"$process_log" 2>&1
}

{
  "$gallery" resources --screenshot docs/gallery.png
  "$gallery" resources --qml examples/host/main.qml --size 800x480 --screenshot docs/own-front-end.png
  "$gallery" resources --contact-sheet "$work/sheet.png"
} 2>>"$process_log"
echo '<body style="margin:0"><img src="sheet.png" style="display:block;width:1280px">' >"$work/sheet.html"
photograph "$work/sheet.html" 866 docs/contact-sheet.png

# The report names the directories as they are given.
cp -r resources "$work/main"
cp -r resources "$work/branch"
cd "$work"
sed -i '0,/^Accent=.*/s//Accent=#7a3e9d/; 0,/^Scrim=.*/s//Scrim=#99301440/' branch/colors.ini
sed -i '0,/^height=.*/s//height=60/' branch/dimensions/800x480.ini
cp branch/icons/day/cooling.svg branch/icons/day/heating.svg
sed -i 's/"Comfort"/"Cozy"/' branch/texts/en.json
status=0
"$gallery" branch --compare main --report report.html 2>>"$process_log" || status=$?
[ "$status" -eq 1 ] || fail "the report of a change ended with exit status $status instead of 1"
cd - >/dev/null
photograph "$work/report.html" 1445 docs/report.png
ls -l docs/*.png
