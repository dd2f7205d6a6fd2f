#!/usr/bin/env bash
# Compares the binary interface of the release build with the recorded one in packaging/symbols: abi.sh [--update]
# It consists of the names that the dynamic loader uses (the library's soname and the libraries that it needs), the
# symbols that the library exports, those that it takes from the host, and the classes of the installed headers:
# offset and size of each member in bytes, methods with their types, slots of virtual ones. --update records it again.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --package
./scripts/build.sh release TarnisLibrary
library=build/release/TarnisLibrary/libTarnisLibrary.so
recorded=packaging/symbols/libTarnisLibrary.abi
mapfile -t headers < <(git ls-files 'TarnisLibrary/*.h' Common/{DBus,Ini,Text}Tools/'*.h')
mapfile -t classes < <(basename -s .h "${headers[@]}")
create_work_folder

loader_names() { readelf -dW "$library" | sed -nE 's/.*\((SONAME|NEEDED)\).*\[(.*)\]$/\1 \2/p' | LC_ALL=C sort; }

symbols() { nm -DC "$1" "$library" | cut -c 18- | grep -E "\b($(IFS='|'; echo "${classes[*]}"))\b" | LC_ALL=C sort -u; }

layouts() {
  read -ra flags < <(pkg-config --cflags Qt5DBus Qt5Gui)
  printf '#include "%s"\n' "${headers[@]}" |
    g++ -std=c++17 -fPIC -g -femit-class-debug-always -fno-eliminate-unused-debug-types -I. -Ibuild/release "${flags[@]}" -x c++ -c - -o "$work/classes.o"
  # Without pahole's remarks about cache lines, holes and unknown types.
  pahole --class_name="$(IFS=,; echo "${classes[*]}")" "$work/classes.o" 2>/dev/null |
    sed -E 's/, cachelines: .*(\*\/)/ \1/; s/\(\(null\)\)//; s/[ \t]+/ /g; s/^ /  /; s/ $//' |
    grep -vE '^$|^  /\* (XXX|BRAIN|---|last|sum|padding|tag__)|^  typedef '
}

{
  echo "# Names that the loader uses:"
  loader_names
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
The binary interface differs from the recorded one. Whatever is gone (-) or moved breaks programs that are not
recompiled and requires a new major version. Additions (+) do not, unless the host has to provide them.
If the change is intended, run ./scripts/abi.sh --update
END
  exit 1
fi
echo "The binary interface is the recorded one: $(loader_names | sed -n 's/^SONAME //p'),"\
  "$(grep -c '^[A-Z] ' "$work/abi") symbols, ${#classes[@]} classes."
