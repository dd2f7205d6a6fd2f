# shellcheck shell=bash
# Sourced by every script: failing, --help, temporary files, background processes, a private bus, the service, a screen.
# Whatever is created or started here is gone when the script ends, and no wait is unbounded.

processes=()
line='' # the first line printed by the program that was started last

[ "${1:-}" != --help ] || { sed -n '2,/^[^#]/s/^# \?//p' "$0"; exit; }

fail() { echo "$*" >&2; exit 1; }

clean_up() {
  local process
  for process in "${processes[@]}"; do stop "$process" || true; done
  [ -z "${work:-}" ] || rm -rf "$work"
}
trap clean_up EXIT

# Creates a temporary folder: $work. Its path is short, because the names of sockets are limited to 107 bytes.
create_work_folder() {
  work=$(mktemp -d -p /tmp)
  process_log=${process_log:-$work/processes.log}
}

# Starts a program and waits for the first line that it prints: start PROGRAM [ARGUMENT...]
# It ends with this script, even with one that is killed. Its errors go to $process_log.
start() {
  local output
  exec {output}< <(exec setpriv --pdeathsig TERM -- "$@" 2>>"$process_log")
  processes+=("$!")
  read -r -t 20 line <&"$output" || { cat "$process_log" >&2; fail "did not start: $*"; }
}

# Whether the process still runs. A process id that the system has given to somebody else is not ours.
is_running() { grep -qs "^PPid:[[:space:]]$$\$" "/proc/$1/status"; }

# Ends a process that was started and returns its exit status: stop PROCESS_ID
# A process that does not end within 20 s, the time limit of every wait here, is ended by force.
stop() {
  local tick=0
  ! is_running "$1" || kill "$1"
  while is_running "$1" && ((tick++ < 400)); do sleep 0.05; done
  if is_running "$1"; then
    echo "still running after 20 s: $(tr '\0' ' ' <"/proc/$1/cmdline")" >&2
    kill -KILL "$1"
  fi
  wait "$1" 2>/dev/null
}

# Starts a bus, which is the system bus of all programs started from here on.
start_private_bus() {
  start dbus-daemon --session --nofork --nopidfile --print-address
  export DBUS_SYSTEM_BUS_ADDRESS=$line
}

# Starts the service on the private bus: start_service TARNIS_MODULE RESOURCE_DIRECTORY
start_service() {
  start "$1" --resources "$2"
  [ "$line" = "Module.Tarnis publishes $(realpath "$2")" ] || fail "unexpected output of $1: $line"
}

# Starts an X server without a monitor, which is the display of all programs started from here on.
start_screen() {
  start Xvfb -displayfd 1 -dpi 96 -screen 0 1280x800x24 -nolisten tcp
  export DISPLAY=:$line
}
