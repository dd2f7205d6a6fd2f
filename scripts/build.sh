#!/usr/bin/env bash
# Configures and builds one preset: build.sh dev|release|ci
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p "build/$1"
cmake --preset "$1" >"build/$1/configure.log" || { cat "build/$1/configure.log" >&2; exit 1; }
cmake --build --preset "$1"
