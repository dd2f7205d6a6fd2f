#!/usr/bin/env bash
# Builds the Debian packages and uses them in a clean Debian 12: check-packages.sh
# The clean root is kept in memory and is gone when the script ends. Needs root.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
root=build/packages/root
if [ "${1:-}" != --in-own-namespace ]; then
  ./scripts/packages.sh
  mkdir -p "$root"
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0" --in-own-namespace
fi

mount -t tmpfs tmpfs "$root"
(cd build/packages && dpkg-scanpackages . >Packages 2>scan.log) || { cat build/packages/scan.log >&2; exit 1; }
apt-config dump Acquire >build/packages/apt.conf
shopt -s nullglob
sources=(/etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources)
for source in "${sources[@]}"; do [ ! -s "$source" ] || readable+=("$source"); done
packages=(tarnis-module tarnis-resource-check tarnis-gallery tarnis-gallery-qt6
  libtarnislibrary-dev libtarnislibrary-qt6-dev systemd-standalone-sysusers
  cmake g++ ninja-build pkg-config qtdeclarative5-dev qt6-declarative-dev qt6-declarative-dev-tools)
mmdebstrap --mode=root --variant=minbase --format=directory --skip=check/empty --aptopt=build/packages/apt.conf \
  --include="$(IFS=,; echo "${packages[*]}")" --dpkgopt='path-exclude=/usr/share/locale/*' \
  bookworm "$root" "${readable[@]}" "deb [trusted=yes] copy:$PWD/build/packages ./" >build/packages/root.log 2>&1 ||
  { tail -n 40 build/packages/root.log >&2; fail "cannot install the packages"; }
echo "Installed the packages in a clean root after $SECONDS s."

cp -r examples scripts "$root/root"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
timeout 300 chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root /root/scripts/use-packages.sh
echo "The packages work in a clean Debian 12: $SECONDS s."
