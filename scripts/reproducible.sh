#!/usr/bin/env bash
# Builds the library once more, from a copy of the sources in another folder: it must be the same, byte for byte.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh
./scripts/build.sh release TarnisLibrary
work=$(mktemp -d -p /tmp)
trap 'rm -rf "$work"' EXIT

mkdir "$work/elsewhere"
tar -c --exclude=./build --exclude=./.git . | tar -x -C "$work/elsewhere"
"$work/elsewhere/scripts/build.sh" release TarnisLibrary >"$work/build.log" || { cat "$work/build.log" >&2; exit 1; }
library=build/release/TarnisLibrary/libTarnisLibrary.so
if ! cmp "$library" "$work/elsewhere/$library"; then
  diff <(strings "$library") <(strings "$work/elsewhere/$library") >&2 || true
  exit 1
fi
echo "The same bytes, wherever it is built: $(sha256sum <"$library" | cut -c 1-16)..."
