#!/usr/bin/env bash
# Builds everything and runs every test: test.sh [PRESET] (dev: with sanitizers)
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-dev}
./scripts/install-dependencies.sh
./scripts/build.sh "$preset"
ctest --preset "$preset"
