#!/usr/bin/env bash
# Builds everything, starts a private bus, tarnis-module and tarnis-gallery on resources/: a window where there is a
# display, else pictures under build/demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh
./scripts/build.sh release

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
for language in en ja; do
  DISPLAY=":$line" "$gallery" --language "$language" --screenshot "build/demo/gallery-$language.png"
  echo "build/demo/gallery-$language.png"
done
"$gallery" --dump >build/demo/gallery.json
echo "build/demo/gallery.json"
