#!/usr/bin/env bash
# Checks the installed service: its unit, its user, its activation, and its policy on a real bus:
# bus-policy.sh BUILD_FOLDER INSTALL_PREFIX
# Only root can act as other users. For other users it checks the unit only and skips the rest with exit status 77.
set -euo pipefail
. "$(dirname "$0")/../scripts/lib/common.sh"
create_work_folder
root=$work/root installed=$work/root$2
DESTDIR=$root cmake --install "$1" --component module >"$work/install.log"
unit=$installed/lib/systemd/system/tarnis-module.service
module=$installed/bin/tarnis-module resources=$installed/share/tarnis/resources
buses=$installed/share/dbus-1

# The threshold is ten times the highest accepted exposure.
systemd-analyze security --no-pager --offline=true --threshold=5 "$unit" >"$work/exposure" ||
  fail "the unit is too exposed: $(tail -n 1 "$work/exposure")"
# The installed files contain the absolute path of the installed program. Puts the root before it.
below_root() { sed -E "/^Exec/s|([= ])/|\1$root/|g" "$1"; }
below_root "$unit" >"$work/tarnis-module.service"
systemd-analyze verify --recursive-errors=no "$work/tarnis-module.service"
[ "$(id -u)" -eq 0 ] || { echo "Skipped: the bus policy can only be checked as root." >&2; exit 77; }

mkdir -p "$root/etc"
systemd-sysusers --root="$root" "$installed/lib/sysusers.d/tarnis.conf"
user=$(sed -n 's/^User=//p' "$unit")
grep -q "^$user:" "$root/etc/passwd" || fail "systemd-sysusers does not create the unit's user $user"
# No test may create the unit's user on this machine. The user daemon, which every Debian has, takes its place.
sed -i "s/user=\"$user\"/user=\"daemon\"/" "$buses/system.d/Module.Tarnis.conf"
chmod -R u=rwX,go=rX "$work"

# Sets $command to the command that runs a program as a user for at most a minute: as USER PROGRAM [ARGUMENT...]
# --foreground, because timeout would also send SIGCONT, which can cancel the SIGSTOP that LeakSanitizer waits for at the
# end of a program: it would then wait forever.
as() { command=(timeout --foreground -k 20 60 setpriv --reuid="$1" --regid=nogroup --clear-groups "${@:2}"); }

# Starts a program as a user and waits for the first line that it prints: start_as USER PROGRAM [ARGUMENT...]
start_as() {
  as "$@"
  start "${command[@]}"
}

# Compares the answer to a call by the user nobody with a pattern: expect PATTERN PATH INTERFACE.MEMBER [ARGUMENT]
expect() {
  as nobody dbus-send --bus="$DBUS_SYSTEM_BUS_ADDRESS" --print-reply --reply-timeout=20000 --dest=Module.Tarnis "${@:2}"
  answer=$("${command[@]}" 2>&1) || true
  # shellcheck disable=SC2053 # the pattern must not be quoted
  [[ $answer == $1 ]] || fail "on a bus with the default $default, ${*:2} must answer $1, but answers: $answer"
}

# Starts a bus as a user, with the installed policy in a configuration that allows or denies by default:
# start_bus USER allow|deny FURTHER_ELEMENTS
start_bus() {
  default=$2
  cat >"$work/bus.conf" <<END
<busconfig>
  <type>system</type>
  <listen>unix:tmpdir=/tmp</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/> <allow receive_sender="*"/> <allow send_type="method_return"/> <allow send_type="error"/>
    <$default own="*"/> <$default send_type="method_call"/>
    <allow send_destination="org.freedesktop.DBus"/>
  </policy>
  <includedir>$buses/system.d</includedir>
  $3
</busconfig>
END
  start_as "$1" dbus-daemon --config-file="$work/bus.conf" --nofork --nopidfile --print-address
  export DBUS_SYSTEM_BUS_ADDRESS=$line
}

# The policy must not rely on the defaults of the rest of the configuration. Debian's configuration denies by default.
for bus in deny allow; do
  start_bus root $bus ''
  for stranger in nobody root; do
    status=0
    as "$stranger" "$module" --resources "$resources"
    errors=$("${command[@]}" 2>&1) || status=$?
    [[ $status -eq 5 && $errors == *"not allowed to own"* ]] ||
      fail "on a bus with the default $default, tarnis-module started by $stranger ends with exit status $status: $errors"
  done

  start_as daemon "$module" --resources "$resources"
  device=/Tarnis/DeviceUiResources icons=/Tarnis/IconProvider
  expect '*boolean false*/fonts.ini"*' $device Interface.DeviceUiResources.getFontIniFilePath
  expect '*boolean false*/colors.ini"*' $device Interface.DeviceUiResources.getColorIniFilePath
  expect '*boolean false*/800x480.ini"*' $device Interface.DeviceUiResources.getSupportedScreenSizes
  expect '*boolean false*/icons"*' $icons Interface.IconProvider.getIconResourcesBasePath
  expect '*boolean false*"nightMode"*' $icons Interface.IconProvider.getIconResourcesMappingTable string:
  expect '*boolean true*is not a valid mapping table name*' $icons Interface.IconProvider.getIconResourcesMappingTable string:../../etc/passwd

  expect '*.AccessDenied:*' $device org.freedesktop.DBus.Introspectable.Introspect
  expect '*.AccessDenied:*' $device org.freedesktop.DBus.Peer.Ping
  expect '*.AccessDenied:*' $device org.freedesktop.DBus.Properties.GetAll string:Interface.DeviceUiResources
  expect '*.AccessDenied:*' $device Interface.DeviceUiResources.getIconResourcesBasePath
  expect '*.AccessDenied:*' $icons Interface.DeviceUiResources.getFontIniFilePath

  stop "${processes[-1]}" || fail "tarnis-module ends with exit status $?"
done

# The first call of a getter starts the service. The bus's setuid helper serves only the machine's own bus. Without it
# the bus starts the service as the user that the bus itself runs as.
activation=$buses/system-services/Module.Tarnis.service
[ "$(sed -n 's/^User=//p' "$activation")" = "$user" ] || fail "$activation does not start the service as $user"
[ -e "$(dirname "$unit")/$(sed -n 's/^SystemdService=//p' "$activation")" ] || fail "$activation names a unit that is not installed"
below_root "$activation" >"$work/activation"
cp "$work/activation" "$activation"
start_bus daemon deny "<servicedir>$buses/system-services</servicedir>"
expect "*boolean false*\"$resources/colors.ini\"*" "$device" Interface.DeviceUiResources.getColorIniFilePath
