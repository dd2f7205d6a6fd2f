#!/usr/bin/env bash
# Uses an installed tree as another project would: use-installed.sh EXAMPLES WORK_FOLDER DATA_FOLDER [-qt6]
# -qt6 uses the library for Qt 6.
# CMAKE_PREFIX_PATH and PKG_CONFIG_PATH name the tree; a service on the system bus publishes the tree's resources.
set -euo pipefail
scripts=$(dirname "$0")
. "$(dirname "$0")/lib/common.sh"
folder=$2 suffix=${4:-} imports=$3/tarnis${4:-}/qml resources=$3/tarnis/resources
examples=$folder/examples
cp -r "$1" "$examples"
# What a project changes when it moves.
[ -z "$suffix" ] || sed -i -e 's/Qt5 5.15/Qt6 6.4/' -e 's/Qt5::/Qt6::/' -e 's/(TarnisLibrary /(TarnisLibrary-qt6 /' \
  "$examples"/*/CMakeLists.txt
process_log=$folder/host.log
export QT_FONT_DPI=96 QT_QPA_PLATFORM=minimal QT_QUICK_BACKEND=software
export QML2_IMPORT_PATH=$imports # the installed types must not hide the module that the program registers

expect() { # EXPECTED FOUND
  [ "$1" = "$2" ] || fail "expected:"$'\n'"$1"$'\n'"found:"$'\n'"$2"
}

for example in host own-platform; do
  { cmake -S "$examples/$example" -B "$folder/$example" -G Ninja -DCMAKE_EXPORT_COMPILE_COMMANDS=ON &&
    cmake --build "$folder/$example"; } >"$folder/$example.log" 2>&1 ||
    { cat "$folder/$example.log" >&2; fail "cannot build the example $example"; }
done
cat >"$folder/color.cpp" <<'CPP'
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include <cstdio>
int main(int, char* arguments[]) { std::puts(qPrintable(TarnisColorHandler(arguments[1]).getColor("Day", "Text"))); }
CPP
read -ra flags < <(pkg-config --cflags --libs "tarnislibrary$suffix >= 1.0")
c++ -std=c++17 -fPIC -o "$folder/color" "$folder/color.cpp" "${flags[@]}" \
  "-Wl,-rpath,$(pkg-config --variable=libdir "tarnislibrary$suffix")"

expect '#1f2a37' "$(timeout 60 "$folder/color" "$resources/colors.ini")"
expect "#1f2a37
Inter
48
Abbrechen
$resources/icons/night/home.svg" "$(timeout 60 "$folder/own-platform/own-platform" 2>&1)"
# The host prints its answers with console.log, which goes to stderr, and keeps running.
start bash -c "exec '$folder/host/host' 2>&1"
expect 'qml: #1f2a37 Inter 15 48 OK' "$line"

mkdir -p "$folder/product"
cat >"$folder/product/CMakeLists.txt" <<CMAKE
cmake_minimum_required(VERSION 3.25)
project(product LANGUAGES CXX)
find_package(TarnisLibrary$suffix 1.0 CONFIG REQUIRED)
enable_testing()
tarnis_check_resources(DIR $resources QML $(realpath "$examples/host") ARGUMENTS --rule unused-icon=error)
CMAKE
cmake -S "$folder/product" -B "$folder/product/build" -G Ninja >"$folder/product.log"
if cmake --build "$folder/product/build" >"$folder/product.log" 2>&1; then
  fail "tarnis_check_resources() misses an unused icon"
fi
grep -q 'mapping.json.*error: the icon "settings" is not used' "$folder/product.log" ||
  { cat "$folder/product.log" >&2; fail "tarnis_check_resources() does not report the unused icon"; }

"$scripts/check-qml-types.sh" "$imports" "$examples/host/main.qml"
