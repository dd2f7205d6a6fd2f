#!/usr/bin/env bash
# Checks what is installed of the service: its unit, its user, its activation, and its policy on a real bus:
# bus-policy.sh BUILD_DIRECTORY INSTALL_PREFIX
# Only root can act as other users: for everybody else it checks the unit and leaves with exit status 77.
set -euo pipefail

fail() { echo "$*" >&2; exit 1; }

processes=()
directory=$(mktemp -d -p /tmp)
trap 'kill "${processes[@]}" 2>/dev/null || true; wait; rm -rf "$directory"' EXIT
root=$directory/root installed=$directory/root$2
DESTDIR=$root cmake --install "$1" --component module >"$directory/install.log"
unit=$installed/lib/systemd/system/tarnis-module.service
module=$installed/bin/tarnis-module resources=$installed/share/tarnis/resources
buses=$installed/share/dbus-1

# Ten times the highest exposure that is let pass.
systemd-analyze security --no-pager --offline=true --threshold=20 "$unit" >"$directory/exposure" ||
  fail "the unit is too exposed: $(tail -n 1 "$directory/exposure")"
# The installed files name the installed program: below the root it must be found.
belowRoot() { sed -E "/^Exec/s|([= ])/|\1$root/|g" "$1"; }
belowRoot "$unit" >"$directory/tarnis-module.service"
systemd-analyze verify --recursive-errors=no "$directory/tarnis-module.service"
[ "$(id -u)" -eq 0 ] || { echo "Skipped: only root can act as other users, to check the bus policy." >&2; exit 77; }

mkdir -p "$root/etc"
systemd-sysusers --root="$root" "$installed/lib/sysusers.d/tarnis.conf"
user=$(sed -n 's/^User=//p' "$unit")
grep -q "^$user:" "$root/etc/passwd" || fail "the user of the unit is not created: $user"
# Every Debian has the user daemon: it stands for the unit's, which no test may create on this machine.
sed -i "s/user=\"$user\"/user=\"daemon\"/" "$buses/system.d/Module.Tarnis.conf"
chmod -R u=rwX,go=rX "$directory"

# The command that runs a program as a user, for a minute at most.
as() { command=(timeout -k 5 60 setpriv --reuid="$1" --regid=nogroup --clear-groups "${@:2}"); }

# Starts a program as a user, and waits for the first line that it prints: $line.
start() {
  local output
  as "$@"
  exec {output}< <(exec "${command[@]}")
  processes+=("$!")
  read -r -t 20 line <&"$output" || fail "did not start: $*"
}

# What nobody is answered must match the pattern: expect PATTERN PATH INTERFACE.MEMBER [ARGUMENT]
expect() {
  as nobody dbus-send --bus="$DBUS_SYSTEM_BUS_ADDRESS" --print-reply --reply-timeout=20000 --dest=Module.Tarnis "${@:2}"
  answer=$("${command[@]}" 2>&1) || true
  [[ $answer == $1 ]] || fail "on a bus that would $default, ${*:2} is answered, instead of with $1: $answer"
}

# Starts a bus as a user, with the installed policy in a configuration that would allow or deny, and more besides:
# start_bus USER allow|deny ELEMENTS
start_bus() {
  default=$2
  cat >"$directory/bus.conf" <<END
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
  start "$1" dbus-daemon --config-file="$directory/bus.conf" --nofork --nopidfile --print-address
  export DBUS_SYSTEM_BUS_ADDRESS=$line
}

# The policy must hold by itself, whether the rest of the configuration would deny, as Debian's does, or allow.
for bus in deny allow; do
  start_bus root $bus ''
  for stranger in nobody root; do
    status=0
    as "$stranger" "$module" --resources "$resources"
    errors=$("${command[@]}" 2>&1) || status=$?
    [[ $status -eq 5 && $errors == *"not allowed to own"* ]] ||
      fail "on a bus that would $default, tarnis-module leaves $stranger with exit status $status: $errors"
  done

  start daemon "$module" --resources "$resources"
  device=/Tarnis/DeviceUiResources icons=/Tarnis/IconProvider
  expect '*boolean false*/fonts.ini"*' $device Interface.DeviceUiResources.getFontIniFilePath
  expect '*boolean false*/colors.ini"*' $device Interface.DeviceUiResources.getColorIniFilePath
  expect '*boolean false*/800x480.ini"*' $device Interface.DeviceUiResources.getSupportedScreenSizes
  expect '*boolean false*/icons"*' $icons Interface.IconProvider.getIconResourcesBasePath
  expect '*boolean false*"nightMode"*' $icons Interface.IconProvider.getIconResourcesMappingTable string:
  expect '*boolean true*is not the name*' $icons Interface.IconProvider.getIconResourcesMappingTable string:../../etc/passwd

  expect '*.AccessDenied:*' $device org.freedesktop.DBus.Introspectable.Introspect
  expect '*.AccessDenied:*' $device org.freedesktop.DBus.Peer.Ping
  expect '*.AccessDenied:*' $device org.freedesktop.DBus.Properties.GetAll string:Interface.DeviceUiResources
  expect '*.AccessDenied:*' $device Interface.DeviceUiResources.getIconResourcesBasePath
  expect '*.AccessDenied:*' $icons Interface.DeviceUiResources.getFontIniFilePath

  kill "${processes[-1]}"
  wait "${processes[-1]}" || fail "tarnis-module ends with exit status $?"
done

# The first getter starts the service. Without its helper, which knows the machine's own bus only, the bus starts it
# as the user that it runs as itself.
activation=$buses/system-services/Module.Tarnis.service
[ "$(sed -n 's/^User=//p' "$activation")" = "$user" ] || fail "the bus would start the service as another user"
[ -e "$(dirname "$unit")/$(sed -n 's/^SystemdService=//p' "$activation")" ] || fail "the bus would ask for another unit"
belowRoot "$activation" >"$directory/activation"
cp "$directory/activation" "$activation"
start_bus daemon deny "<servicedir>$buses/system-services</servicedir>"
expect "*boolean false*\"$resources/colors.ini\"*" $device Interface.DeviceUiResources.getColorIniFilePath
