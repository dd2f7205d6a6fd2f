#!/usr/bin/env bash
# Builds everything, starts a private bus, tarnis-module and tarnis-gallery on resources/: demo.sh
# Opens a window if there is a display; otherwise writes pictures to build/demo/.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh
./scripts/build.sh release tarnis-module tarnis-gallery

mkdir -p build/demo
process_log=build/demo/processes.log
start_private_bus
start_service build/release/TarnisModule/tarnis-module resources
echo "$line"

gallery=build/release/Gallery/tarnis-gallery
if [ -n "${DISPLAY:-}" ]; then
  "$gallery"
  exit
fi

start_screen
take() {
  timeout 60 "$gallery" --screenshot "build/demo/$1" "${@:2}" 2>>"$process_log"
  echo "build/demo/$1"
}
take device.png
take device-night-ja.png --display 800x480 --language ja --context nightMode
for page in Colors Fonts Dimensions Icons Texts; do
  take "${page,,}.png" --page "$page"
done
timeout 60 "$gallery" --dump >build/demo/lookups.json 2>>"$process_log"
echo "build/demo/lookups.json"
