#!/usr/bin/env bash
# Installs the Debian packages that are missing:
# install-dependencies.sh [--qt6] [--lint] [--benchmark] [--valgrind] [--docs] [--package] [--cross] [--browser]
# --qt6 adds Qt 6 beside Qt 5.
# --lint adds the second compiler with its fuzzing library, the formatter, the linters and the spelling checker.
# --benchmark adds the benchmark library, the libraries to compare with, and the tools that count and plot.
# --valgrind adds valgrind.
# --docs adds the generator of the reference.
# --package adds the tools that build and check packages, and the QML linter that reads the installed types.
# --cross adds the compiler and the emulator for 64-bit ARM.
# --browser adds the browser in which a test opens the gallery's report.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"

packages=(
  g++ cmake ninja-build git ca-certificates
  qtbase5-dev qtbase5-private-dev qtdeclarative5-dev qtdeclarative5-dev-tools qtdeclarative5-private-dev
  qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-layouts qml-module-qtquick-controls2
  qml-module-qttest
  libqt5svg5 fonts-inter fonts-dejavu-core fonts-ipaexfont-gothic
  dbus-daemon libdbus-1-dev pkg-config systemd xvfb x11-xserver-utils python3 python3-jsonschema
)
for option in "$@"; do
  case $option in
    --qt6) packages+=(
      qt6-base-dev qt6-base-private-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-declarative-private-dev libgl-dev
      qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
      qml6-module-qtquick qml6-module-qtquick-window
      qml6-module-qtquick-layouts qml6-module-qtquick-templates qml6-module-qtquick-controls qml6-module-qttest
      libqt6svg6
    ) ;;
    --lint) packages+=(clang libclang-rt-14-dev clang-format clang-tidy codespell shellcheck) ;;
    --package) packages+=(dpkg-dev file lintian mmdebstrap pahole qt6-declarative-dev-tools qml6-module-qtquick qml6-module-qtquick-window) ;;
    --docs) packages+=(doxygen) ;;
    --cross) packages+=(g++-aarch64-linux-gnu qemu-user mmdebstrap) ;;
    --valgrind) packages+=(valgrind libc6-dbg) ;;
    --browser) packages+=(chromium) ;;
    --benchmark) packages+=(
      libbenchmark-dev libkf5config-dev libkf5iconthemes-dev libglib2.0-dev
      strace valgrind libc6-dbg binutils python3-matplotlib
    ) ;;
    *) echo "unknown option: $option; see $0 --help" >&2; exit 2 ;;
  esac
done

missing=()
for package in "${packages[@]}"; do
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || fail "missing packages: ${missing[*]}. Run this script as root or install sudo."
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
