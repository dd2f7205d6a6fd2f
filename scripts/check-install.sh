#!/usr/bin/env bash
# Installs the release build, moves it, and uses it as another project would: check-install.sh [--lint]
# With --lint clang-tidy reads the examples too.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --package
./scripts/build.sh release

fail() { echo "$*" >&2; exit 1; }

processes=()
work=$(mktemp -d -p /tmp)
trap 'kill "${processes[@]}" 2>/dev/null || true; wait; rm -rf "$work"' EXIT

cmake --install build/release --prefix "$work/installed" >/dev/null
prefix=$work/moved
mv "$work/installed" "$prefix"
foreign=$(grep -rlF -e "$PWD" -e "$work/installed" "$prefix" || true)
[ -z "$foreign" ] || fail "these name the place where they were built or installed first: $foreign"
pkgconfig=$(dirname "$(find "$prefix" -name tarnislibrary.pc)")
resources=$prefix/share/tarnis/resources
cp -r examples "$work"

# Starts a process and waits for the first line that it prints: $line.
start() {
  local output
  exec {output}< <(exec timeout 300 "$@" 2>>"$work/processes.log")
  processes+=("$!")
  read -r -t 20 line <&"$output" || { cat "$work/processes.log" >&2; fail "did not start: $*"; }
}

start dbus-daemon --session --nofork --nopidfile --print-address
export DBUS_SYSTEM_BUS_ADDRESS=$line XDG_RUNTIME_DIR=$work
start "$prefix/bin/tarnis-module" --resources "$resources"
[ "$line" = "Module.Tarnis publishes $resources" ] || fail "tarnis-module says: $line"
CMAKE_PREFIX_PATH=$prefix PKG_CONFIG_PATH=$pkgconfig \
  ./scripts/use-installed.sh "$work/examples" "$work" "$prefix/share/tarnis"
start Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp
DISPLAY=:$line QML2_IMPORT_PATH=$prefix/share/tarnis/qml timeout 60 "$prefix/bin/tarnis-gallery" --screenshot "$work/gallery.png"

if [ "${1:-}" = --lint ]; then
  for example in host own-platform; do
    printf '%s\0' "$work/examples/$example"/*.cpp |
      xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet --config-file=.clang-tidy -p "$work/$example"
  done
fi
echo "Installed, moved, and of use to others."
