#!/usr/bin/env bash
# Builds for a 64-bit ARM device and runs the tests of library and service in an emulator: cross.sh
# The first run makes the sysroot build/sysroot-aarch64 from Debian's packages.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --cross

sysroot=build/sysroot-aarch64
if [ ! -d "$sysroot" ]; then
  echo "Making $sysroot"
  rm -rf "$sysroot.new"
  mkdir -p build
  apt-config dump Acquire >"$sysroot.conf"
  mmdebstrap --variant=extract --architectures=arm64 --format=directory --aptopt="$sysroot.conf" \
    --include=qtbase5-private-dev,qtdeclarative5-private-dev,libdbus-1-dev bookworm "$sysroot.new" >"$sysroot.log" 2>&1 ||
    { tail -n 40 "$sysroot.log" >&2; exit 1; }
  # moc and the other Qt tools run on this machine.
  rm -rf "$sysroot.new/usr/lib/qt5/bin"
  ln -s /usr/lib/qt5/bin "$sysroot.new/usr/lib/qt5/bin"
  find "$sysroot.new/usr/lib/aarch64-linux-gnu" -lname '/*' -printf '%p %l\n' |
    while read -r link target; do ln -sfnr "$sysroot.new$target" "$link"; done
  mv "$sysroot.new" "$sysroot"
fi

./scripts/build.sh aarch64 TarnisLibrary HostPlatform tarnis-module
mapfile -t tests < <(ctest --preset aarch64 -N | grep -oP '^ *Test +#\d+: \K[A-Za-z]+Test$')
./scripts/build.sh aarch64 "${tests[@]}"
ctest --preset aarch64
library=build/aarch64/TarnisLibrary/libTarnisLibrary.so
aarch64-linux-gnu-strip -o build/aarch64/stripped.so "$library"
echo "$library: $(stat -c %s build/aarch64/stripped.so) bytes stripped," \
  "$(readelf -rW "$library" | grep -c R_AARCH64_) relocations"
