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
libraries=$(dirname "$pkgconfig")
resources=$prefix/share/tarnis/resources
cp -r examples "$work"

for example in host own-platform; do
  for command in "-S $work/examples/$example -B $work/$example -G Ninja -DCMAKE_PREFIX_PATH=$prefix
    -DCMAKE_EXPORT_COMPILE_COMMANDS=ON" "--build $work/$example"; do
    cmake $command >"$work/$example.log" 2>&1 || { cat "$work/$example.log" >&2; fail "$example cannot be built"; }
  done
  if [ "${1:-}" = --lint ]; then
    printf '%s\0' "$work/examples/$example"/*.cpp |
      xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet --config-file=.clang-tidy -p "$work/$example" >"$work/lint.log" 2>&1 ||
      { cat "$work/lint.log" >&2; fail "clang-tidy has something to say"; }
  fi
done

cat >"$work/color.cpp" <<'END'
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include <cstdio>
int main(int, char* arguments[]) { std::puts(qPrintable(TarnisColorHandler(arguments[1]).getColor("Day", "Text"))); }
END
read -ra flags < <(PKG_CONFIG_PATH=$pkgconfig pkg-config --cflags --libs 'tarnislibrary >= 1.0')
c++ -std=c++17 -o "$work/color" "$work/color.cpp" "${flags[@]}" "-Wl,-rpath,$libraries"

# Starts a process and waits for the first line that it prints: $line.
start() {
  local output
  exec {output}< <(exec timeout 60 "$@" 2>>"$work/processes.log")
  processes+=("$!")
  read -r -t 20 line <&"$output" || { cat "$work/processes.log" >&2; fail "did not start: $*"; }
}
expect() { # EXPECTED FOUND
  [ "$1" = "$2" ] || fail "expected:"$'\n'"$1"$'\n'"found:"$'\n'"$2"
}

start dbus-daemon --session --nofork --nopidfile --print-address
export XDG_RUNTIME_DIR=$work DBUS_SYSTEM_BUS_ADDRESS=$line QT_FONT_DPI=96 QT_QPA_PLATFORM=minimal QT_QUICK_BACKEND=software
export QML2_IMPORT_PATH=$libraries/qt5/qml # the types must not stand in the way of the program's own module
start "$prefix/bin/tarnis-module" --resources "$resources"
expect "Module.Tarnis publishes $resources" "$line"

expect '#1f2a37' "$("$work/color" "$resources/colors.ini")"
start sh -c "exec '$work/host/host' 2>&1" # QML's console
expect 'qml: #1f2a37 Inter 15 48 OK' "$line"
expect "#1f2a37
Inter
48
Abbrechen
$resources/icons/night/home.svg" "$(timeout 60 "$work/own-platform/own-platform" 2>&1)"
start Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp
DISPLAY=:$line QT_QPA_PLATFORM=xcb timeout 60 "$prefix/bin/tarnis-gallery" --screenshot "$work/gallery.png"

./scripts/check-qml-types.sh "$libraries/qt5/qml" "$work/examples/host/main.qml"
echo "Installed, moved, and of use to others."
