#!/usr/bin/env bash
# Lints all C++ sources except the examples, which check-install.sh --lint reads: clang-tidy.sh
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --lint --benchmark
./scripts/build.sh ci
./scripts/build.sh fuzz fuzzers
# The files that take longest first, so that no core is idle at the end.
lint() { xargs -0 ls -S --zero | xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$1"; }
git ls-files -z '*.cpp' ':!fuzz' ':!examples' | lint build/ci
git ls-files -z 'fuzz/*.cpp' | lint build/fuzz
