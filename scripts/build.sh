#!/usr/bin/env bash
# Configures and builds one preset: build.sh dev|release|ci|fuzz|valgrind [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=$1
mkdir -p "build/$preset"
cmake --preset "$preset" >"build/$preset/configure.log" || { cat "build/$preset/configure.log" >&2; exit 1; }
cmake --build --preset "$preset" ${2:+--target "${@:2}"}
