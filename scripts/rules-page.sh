#!/usr/bin/env bash
# Writes docs/checker-rules.md, the page of the checker's rules: rules-page.sh CHECKER [--check]
# With --check it only fails if the page does not show the current rules.
set -euo pipefail
[ "${1:-}" != --help ] || { sed -n '2,/^[^#]/s/^# \?//p' "$0"; exit; }
cd "$(dirname "$0")/.."
page=docs/checker-rules.md
if [ "${2:-}" != --check ]; then
  "$1" --list-rules --format markdown >"$page"
elif ! "$1" --list-rules --format markdown | diff "$page" -; then
  echo "$page does not show the current rules; run ./scripts/rules-page.sh build/dev/ResourceCheck/tarnis-resource-check" >&2
  exit 1
fi
