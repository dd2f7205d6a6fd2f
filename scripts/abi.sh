#!/usr/bin/env bash
# Compares what programs rely on until they are compiled anew with packaging/symbols: abi.sh [--update]
# That is: the symbols that the release build exports, those that it takes from the host, and the classes of the
# installed headers: offset and size of each member in bytes, methods with their types, places of virtual ones.
# --update writes it down anew.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --package
./scripts/build.sh release TarnisLibrary
library=build/release/TarnisLibrary/libTarnisLibrary.so
recorded=packaging/symbols/libTarnisLibrary.abi
mapfile -t headers < <(git ls-files 'TarnisLibrary/*.h' Common/{DBus,Ini,Text}Tools/'*.h')
mapfile -t classes < <(basename -s .h "${headers[@]}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

symbols() { nm -DC "$1" "$library" | cut -c 18- | grep -E "\b($(IFS='|'; echo "${classes[*]}"))\b" | LC_ALL=C sort -u; }

layouts() {
  read -ra flags < <(pkg-config --cflags Qt5DBus Qt5Gui)
  printf '#include "%s"\n' "${headers[@]}" |
    g++ -std=c++17 -fPIC -g -femit-class-debug-always -fno-eliminate-unused-debug-types -I. -Ibuild/release "${flags[@]}" -x c++ -c - -o "$work/classes.o"
  # Without what it says on top: cache lines, holes, and what it does not know.
  pahole --class_name="$(IFS=,; echo "${classes[*]}")" "$work/classes.o" 2>/dev/null |
    sed -E 's/, cachelines: .*(\*\/)/ \1/; s/\(\(null\)\)//; s/[ \t]+/ /g; s/^ /  /; s/ $//' |
    grep -vE '^$|^  /\* (XXX|BRAIN|---|last|sum|padding|tag__)|^  typedef '
}

{
  echo "# Exported:"
  symbols --defined-only
  echo "# Taken from the host:"
  symbols --undefined-only
  echo "# Classes:"
  layouts
} >"$work/abi"
if [ "${1:-}" = --update ]; then
  mkdir -p "$(dirname "$recorded")"
  cp "$work/abi" "$recorded"
elif ! diff -U 3 --show-function-line='^class' --label recorded --label built "$recorded" "$work/abi"; then
  cat >&2 <<'END'
The binary interface is not the recorded one. What is gone (-) or moved breaks programs that are not compiled anew, and
wants another major version; what only came (+) does not, unless the host has to provide it. If it is meant:
./scripts/abi.sh --update
END
  exit 1
fi
echo "The binary interface is as recorded: $(grep -c '^[A-Z] ' "$work/abi") symbols, ${#classes[@]} classes."
