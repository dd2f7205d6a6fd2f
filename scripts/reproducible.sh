#!/usr/bin/env bash
# Checks that the library does not depend on the folder where it is built: reproducible.sh
# Builds it again from a copy of the sources in another folder and compares the bytes.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh
./scripts/build.sh release TarnisLibrary
create_work_folder

mkdir "$work/elsewhere"
tar -c --exclude=./build --exclude=./.git . | tar -x -C "$work/elsewhere"
"$work/elsewhere/scripts/build.sh" release TarnisLibrary >"$work/build.log" || { cat "$work/build.log" >&2; exit 1; }
library=build/release/TarnisLibrary/libTarnisLibrary.so
if ! cmp "$library" "$work/elsewhere/$library"; then
  diff <(strings "$library") <(strings "$work/elsewhere/$library") >&2 || true
  fail "the library depends on the folder where it is built"
fi
echo "Both folders give the same bytes: $(sha256sum <"$library" | cut -c 1-16)..."
