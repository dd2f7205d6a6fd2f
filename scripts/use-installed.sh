#!/usr/bin/env bash
# Uses an installed tree as another project would: use-installed.sh EXAMPLES WORK_DIRECTORY DATA_DIRECTORY
# CMAKE_PREFIX_PATH and PKG_CONFIG_PATH say where the tree lies; on the system bus the service publishes its resources.
set -euo pipefail
examples=$1 work=$2 imports=$3/qml resources=$3/resources
scripts=$(dirname "$0")
export QT_FONT_DPI=96 QT_QPA_PLATFORM=minimal QT_QUICK_BACKEND=software
export QML2_IMPORT_PATH=$imports # the types must not stand in the way of the program's own module

fail() { echo "$*" >&2; exit 1; }
expect() { # EXPECTED FOUND
  [ "$1" = "$2" ] || fail "expected:"$'\n'"$1"$'\n'"found:"$'\n'"$2"
}

for example in host own-platform; do
  { cmake -S "$examples/$example" -B "$work/$example" -G Ninja -DCMAKE_EXPORT_COMPILE_COMMANDS=ON &&
    cmake --build "$work/$example"; } >"$work/$example.log" 2>&1 ||
    { cat "$work/$example.log" >&2; fail "$example cannot be built"; }
done
cat >"$work/color.cpp" <<'END'
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include <cstdio>
int main(int, char* arguments[]) { std::puts(qPrintable(TarnisColorHandler(arguments[1]).getColor("Day", "Text"))); }
END
read -ra flags < <(pkg-config --cflags --libs 'tarnislibrary >= 1.0')
c++ -std=c++17 -fPIC -o "$work/color" "$work/color.cpp" "${flags[@]}" \
  "-Wl,-rpath,$(pkg-config --variable=libdir tarnislibrary)"

expect '#1f2a37' "$("$work/color" "$resources/colors.ini")"
expect "#1f2a37
Inter
48
Abbrechen
$resources/icons/night/home.svg" "$(timeout 60 "$work/own-platform/own-platform" 2>&1)"
# QML's console is where the host says that it is there; it would go on.
exec {output}< <(exec timeout 60 "$work/host/host" 2>&1)
host=$!
trap 'kill "$host" 2>/dev/null || true' EXIT
read -r -t 20 line <&"$output" || fail "the host says nothing"
expect 'qml: #1f2a37 Inter 15 48 OK' "$line"

mkdir -p "$work/product"
cat >"$work/product/CMakeLists.txt" <<END
cmake_minimum_required(VERSION 3.25)
project(product LANGUAGES CXX)
find_package(TarnisLibrary 1.0 CONFIG REQUIRED)
enable_testing()
tarnis_check_resources(DIR $resources QML $(realpath "$examples/host") ARGUMENTS --rule unused-icon=error)
END
cmake -S "$work/product" -B "$work/product/build" -G Ninja >"$work/product.log"
if cmake --build "$work/product/build" >"$work/product.log" 2>&1; then
  fail "the check of resources finds nothing"
fi
grep -q 'mapping.json.*error: the icon "settings" is not used' "$work/product.log" || { cat "$work/product.log"; exit 1; }

"$scripts/check-qml-types.sh" "$imports" "$examples/host/main.qml"
