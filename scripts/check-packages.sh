#!/usr/bin/env bash
# Makes the packages and uses them in a clean Debian 12, which lives in memory and only as long as this runs. Needs root.
set -euo pipefail
cd "$(dirname "$0")/.."
root=build/packages/root
if [ "${1:-}" != --in-own-namespace ]; then
  ./scripts/packages.sh
  mkdir -p "$root"
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0" --in-own-namespace
fi

fail() { echo "$*" >&2; exit 1; }

mount -t tmpfs tmpfs "$root"
(cd build/packages && dpkg-scanpackages . >Packages 2>scan.log) || { cat build/packages/scan.log >&2; exit 1; }
apt-config dump Acquire >build/packages/apt.conf
shopt -s nullglob
sources=(/etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources)
for source in "${sources[@]}"; do [ ! -s "$source" ] || readable+=("$source"); done
packages=(tarnis-module tarnis-tools libtarnislibrary-dev systemd-standalone-sysusers
  cmake g++ ninja-build pkg-config qtdeclarative5-dev
  qt6-declarative-dev-tools qml6-module-qtquick qml6-module-qtquick-window)
mmdebstrap --mode=root --variant=minbase --format=directory --skip=check/empty --aptopt=build/packages/apt.conf \
  --include="$(IFS=,; echo "${packages[*]}")" --dpkgopt='path-exclude=/usr/share/locale/*' \
  bookworm "$root" "${readable[@]}" "deb [trusted=yes] copy:$PWD/build/packages ./" >build/packages/root.log 2>&1 ||
  { tail -n 40 build/packages/root.log >&2; fail "the packages cannot be installed"; }
echo "Installed in a clean root after $SECONDS s."

cp -r examples scripts/use-installed.sh scripts/check-qml-types.sh "$root/root"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
# The bus as Debian configures it, without systemd: the first call starts the service as its user.
timeout 300 chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root bash -euo pipefail -c '
  mkdir /run/dbus /root/work
  chmod 700 /root/work
  export XDG_RUNTIME_DIR=/root/work
  exec {output}< <(exec dbus-daemon --system --nofork --nopidfile --print-address 2>/root/bus.log)
  read -r -t 20 address <&"$output" || { cat /root/bus.log >&2; exit 1; }
  tarnis-gallery --dump >/root/dump.json
  grep -q "\"text://Button/Ok\": \"OK\"" /root/dump.json
  user=$(stat -c %U /proc/"$(pgrep -x tarnis-module)")
  [ "$user" = tarnis ] || { echo "the service runs as $user" >&2; exit 1; }
  /root/use-installed.sh /root/examples /root/work /usr/share/tarnis
  dpkg --purge tarnis-tools tarnis-module libtarnislibrary-dev libtarnislibrary1 >/root/purge.log ||
    { cat /root/purge.log >&2; exit 1; }'
echo "Packages installed and of use in a clean Debian 12 after $SECONDS s."
