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
timeout 60 tarnis-gallery --dump >"$work/dump.json"
grep -q '"text://Button/Ok": "OK"' "$work/dump.json" || fail "tarnis-gallery --dump does not print the texts"
user=$(stat -c %U "/proc/$(pgrep -x tarnis-module)")
[ "$user" = tarnis ] || fail "the service runs as $user instead of tarnis"
./scripts/use-installed.sh examples "$work" /usr/share/tarnis
dpkg --purge tarnis-tools tarnis-module libtarnislibrary-dev libtarnislibrary1 >"$work/purge.log" ||
  { cat "$work/purge.log" >&2; exit 1; }
