#!/usr/bin/env bash
# Installs the release build, moves the installed tree and uses it as another project would: check-install.sh [--lint]
# With --lint, clang-tidy also reads the examples.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
. "$(dirname "$0")/lib/clang-tidy.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --package ${1:+"$1"}
./scripts/build.sh release

create_work_folder
cmake --install build/release --prefix "$work/installed" >/dev/null
prefix=$work/moved
mv "$work/installed" "$prefix"
foreign=$(grep -rlF -e "$PWD" -e "$work/installed" "$prefix" || true)
[ -z "$foreign" ] || fail "these installed files contain the build or installation folder: $foreign"
pkgconfig=$(dirname "$(find "$prefix" -name tarnislibrary.pc)")

start_private_bus
export XDG_RUNTIME_DIR=$work
start_service "$prefix/bin/tarnis-module" "$prefix/share/tarnis/resources"
CMAKE_PREFIX_PATH=$prefix PKG_CONFIG_PATH=$pkgconfig \
  ./scripts/use-installed.sh examples "$work" "$prefix/share"

# The QML plugin in a program without a host: on a directory, and on the service.
imports=$(dirname "$(dirname "$(find "$prefix" -name libtarnisqml.so)")")
for directory in "$prefix/share/tarnis/resources" ''; do
  QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 QT_QUICK_BACKEND=software TARNIS_RESOURCES=$directory \
    timeout 60 /usr/lib/qt5/bin/qmltestrunner -import "$imports" -input tests/qml >"$work/qml.log" 2>&1 ||
    { cat "$work/qml.log" >&2; fail "qmltestrunner does not work with the installed QML plugin"; }
done

start_screen
QML2_IMPORT_PATH=$prefix/share/tarnis/qml timeout 60 "$prefix/bin/tarnis-gallery" --screenshot "$work/gallery.png"

if [ "${1:-}" = --lint ]; then
  for example in host own-platform; do
    printf '%s\0' "$work/examples/$example"/*.cpp | run_clang_tidy --config-file=.clang-tidy -p "$work/$example"
  done
fi
echo "Other projects can use the installed and moved tree."
