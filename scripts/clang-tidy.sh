#!/usr/bin/env bash
# Lints all C++ sources except the examples, which check-install.sh --lint reads: clang-tidy.sh
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
. "$(dirname "$0")/lib/clang-tidy.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --lint --benchmark
./scripts/build.sh ci
./scripts/build.sh fuzz fuzzers
# The longest files first, so that no core is idle at the end.
by_size() { git ls-files -z "$@" | xargs -0 ls -S --zero; }
by_size '*.cpp' ':!fuzz' ':!examples' | run_clang_tidy -p build/ci
by_size 'fuzz/*.cpp' | run_clang_tidy -p build/fuzz
