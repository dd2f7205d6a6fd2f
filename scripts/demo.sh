#!/usr/bin/env bash
# Builds everything, starts a private bus, tarnis-module and tarnis-gallery on resources/: a window where there is a
# display, else pictures under build/demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh
./scripts/build.sh release tarnis-module tarnis-gallery

mkdir -p build/demo
processes=()
trap 'kill "${processes[@]}" 2>/dev/null || true; wait' EXIT

# Starts a process and waits for the first line that it prints: $line.
start() {
  local output
  exec {output}< <(exec "$@" 2>>build/demo/processes.log)
  processes+=("$!")
  read -r -t 10 line <&"$output" || { echo "$1 did not start; see build/demo/processes.log" >&2; exit 1; }
}

start dbus-daemon --session --nofork --nopidfile --print-address
export DBUS_SYSTEM_BUS_ADDRESS=$line
start build/release/TarnisModule/tarnis-module --resources resources
echo "$line"

gallery=build/release/Gallery/tarnis-gallery
if [ -n "${DISPLAY:-}" ]; then
  "$gallery"
  exit
fi

start Xvfb -displayfd 1 -dpi 96 -screen 0 1280x800x24 -nolisten tcp
export DISPLAY=":$line"
take() {
  "$gallery" --screenshot "build/demo/$1" "${@:2}" 2>>build/demo/processes.log
  echo "build/demo/$1"
}
take device.png
take device-night-ja.png --display 800x480 --language ja --context nightMode
for page in Colours Fonts Dimensions Icons Texts; do
  take "${page,,}.png" --page "$page"
done
"$gallery" --dump >build/demo/lookups.json
echo "build/demo/lookups.json"
