# shellcheck shell=sh
# Functions for the rows of TroubleTest. $D is the directory that the trouble happens to. Without IFS, the shell does not
# split the variables that the rows use.
exec 2>/dev/null
set -f
IFS=

files() {
  mkdir "$D"
  printf '[G]\nk=1\nl=2\n' >"$D/c.ini"
  printf '{"k": "1"}' >"$D/en.json"
  : >"$D/i.svg"
}

gone() {
  umount "$D"
  chmod 700 "$D"
  rm -rf "$D"
}

# Runs a command for each file, which the command finds in $F.
each() {
  # shellcheck disable=SC2034
  for F in "$D/c.ini" "$D/en.json" "$D/i.svg"; do
    eval "$1"
  done
}

# Fills the file system until no byte is left, then makes it read-only. Where mounting is refused, a limit and
# permissions have the same effect on the files.
full() {
  if ! mount --make-rprivate / || ! mount -t tmpfs -o size=16k none "$D"; then
    ulimit -f 16
    trap '' XFSZ
  fi
  files
  # shellcheck disable=SC2016 # each() evaluates it
  each 'yes "; c" >> $F'
  mount -o remount,ro "$D" || chmod -R a-w "$D"
}
