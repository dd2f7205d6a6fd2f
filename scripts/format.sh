#!/usr/bin/env bash
# Formats the C++ sources: format.sh [--check]
# With --check it only reports those that are not formatted.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
options=(-i)
[ "${1:-}" = --check ] && options=(--dry-run --Werror)
git ls-files -z --cached --others --exclude-standard '*.cpp' '*.h' | xargs -0 clang-format "${options[@]}"
