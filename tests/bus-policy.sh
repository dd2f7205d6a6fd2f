#!/usr/bin/env bash
# Checks the service's unit, its user, and its policy on a real bus: bus-policy.sh MODULE_PROGRAM RESOURCES
# Only root can act as other users: for everybody else it checks the unit and leaves with exit status 77.
set -euo pipefail
module=$1 resources=$2
packaging=$(realpath "$(dirname "$0")/../packaging")
unit=$packaging/systemd/tarnis-module.service

fail() { echo "$*" >&2; exit 1; }

processes=()
directory=$(mktemp -d -p /tmp)
trap 'kill "${processes[@]}" 2>/dev/null || true; wait; rm -rf "$directory"' EXIT

# Ten times the highest exposure that is let pass.
systemd-analyze security --no-pager --offline=true --threshold=20 "$unit" >"$directory/exposure" ||
  fail "the unit is too exposed: $(tail -n 1 "$directory/exposure")"
cp "$module" "$directory/tarnis-module"
sed "s|/usr/bin/tarnis-module|$directory/tarnis-module|" "$unit" >"$directory/tarnis-module.service"
systemd-analyze verify --recursive-errors=no "$directory/tarnis-module.service"
[ "$(id -u)" -eq 0 ] || { echo "Skipped: only root can act as other users, to check the bus policy." >&2; exit 77; }

mkdir -p "$directory/root/etc"
systemd-sysusers --root="$directory/root" "$packaging/sysusers.d/tarnis.conf"
user=$(sed -n 's/^User=//p' "$unit")
grep -q "^$user:" "$directory/root/etc/passwd" || fail "the user of the unit is not created: $user"
# Every Debian has the user daemon: it stands for the unit's, which no test may create on this machine.
sed "s/user=\"$user\"/user=\"daemon\"/" "$packaging/dbus/Module.Tarnis.conf" >"$directory/policy.conf"
# Wherever the working copy lies, other users can read the copies.
cp -rL "$resources" "$directory/resources"
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

# The policy must hold by itself, whether the rest of the configuration would deny, as Debian's does, or allow.
for default in deny allow; do
  cat >"$directory/bus.conf" <<END
<busconfig>
  <type>system</type>
  <listen>unix:path=$directory/$default</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/> <allow receive_sender="*"/> <allow send_type="method_return"/> <allow send_type="error"/>
    <$default own="*"/> <$default send_type="method_call"/>
    <allow send_destination="org.freedesktop.DBus"/>
  </policy>
  <include>$directory/policy.conf</include>
</busconfig>
END
  start root dbus-daemon --config-file="$directory/bus.conf" --nofork --nopidfile --print-address
  export DBUS_SYSTEM_BUS_ADDRESS=$line

  for stranger in nobody root; do
    status=0
    as "$stranger" "$directory/tarnis-module" --resources "$directory/resources"
    errors=$("${command[@]}" 2>&1) || status=$?
    [[ $status -eq 5 && $errors == *"not allowed to own"* ]] ||
      fail "on a bus that would $default, tarnis-module leaves $stranger with exit status $status: $errors"
  done

  start daemon "$directory/tarnis-module" --resources "$directory/resources"
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
