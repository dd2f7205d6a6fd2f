#!/usr/bin/env bash
# Uses the installed packages as another project would, then removes them: use-packages.sh
# check-packages.sh copies it to a clean Debian and runs it there as root. Do not run it anywhere else.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
create_work_folder
export XDG_RUNTIME_DIR=$work

# The bus as Debian configures it, without systemd: the first call starts the service as the service's user.
mkdir /run/dbus
start dbus-daemon --system --nofork --nopidfile --print-address
for gallery in tarnis-gallery tarnis-gallery-qt6; do
  timeout 60 "$gallery" --dump >"$work/dump.json"
  grep -q '"text://Button/Ok": "OK"' "$work/dump.json" || fail "$gallery --dump does not print the texts"
done
user=$(stat -c %U "/proc/$(pgrep -x tarnis-module)")
[ "$user" = tarnis ] || fail "the service runs as $user instead of tarnis"
for suffix in '' -qt6; do
  mkdir "$work/consumer$suffix"
  ./scripts/use-installed.sh examples "$work/consumer$suffix" /usr/share $suffix
  echo "Built and ran the consumers of libtarnislibrary$suffix-dev."
done
dpkg --purge tarnis-gallery tarnis-gallery-qt6 tarnis-resource-check tarnis-module libtarnislibrary-dev \
  libtarnislibrary-qt6-dev libtarnislibrary1 libtarnislibrary-qt6-1 >"$work/purge.log" ||
  { cat "$work/purge.log" >&2; exit 1; }
