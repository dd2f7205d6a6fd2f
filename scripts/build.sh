#!/usr/bin/env bash
# Configures and builds one preset: build.sh dev|release|qt6-dev|qt6-release|ci|valgrind|fuzz|aarch64 [TARGET...]
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
[ $# -ge 1 ] || fail "usage: $0 PRESET [TARGET...]"
preset=$1
mkdir -p "build/$preset"
# Steps of CI that run side by side use the same build folder: one at a time.
exec {lock}>"build/$preset/lock"
flock "$lock"
cmake --preset "$preset" >"build/$preset/configure.log" || { cat "build/$preset/configure.log" >&2; exit 1; }
cmake --build --preset "$preset" ${2:+--target "${@:2}"}
