#!/usr/bin/env bash
# Formats the sources; with --check it only says which are not formatted.
set -euo pipefail
cd "$(dirname "$0")/.."
options=(-i)
[ "${1:-}" = --check ] && options=(--dry-run --Werror)
git ls-files -z --cached --others --exclude-standard '*.cpp' '*.h' | xargs -0 clang-format "${options[@]}"
