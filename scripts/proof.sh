#!/usr/bin/env bash
# Proves what the checker and the service promise and records the figures in docs/proof.md: proof.sh [PART...] | --list
# Without arguments it runs all parts. A part that fails is not recorded.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."

# Each command prints its figures in the last line.
parts=(damage precision recall rewriting callers)
declare -A commands=(
  [damage]='./scripts/proof/damage.sh'
  [precision]='./scripts/proof/precision.sh'
  [recall]='./scripts/proof/recall.sh'
  [rewriting]='./scripts/proof/rewriting.sh'
  [callers]='./scripts/proof/callers.sh'
)
page=docs/proof.md

# Replaces the row of a part: record PART FIGURES
record() {
  local commit row
  commit=$(git rev-parse --short=10 HEAD)
  git diff --quiet HEAD -- ":!$page" || commit+=' with changes'
  row="| $1 | $2 | \`./scripts/proof.sh $1\` | $commit | $(date +%F) |"
  awk -v part="| $1 |" -v row="$row" '
    index($0, part) == 1 { next }
    /^<!-- end of figures -->/ { print row }
    { print }' "$page" >build/proof/page
  cp build/proof/page "$page"
}

[ "${1:-}" != --list ] || { for part in "${parts[@]}"; do echo "$part ${commands[$part]}"; done; exit; }
chosen=("$@")
[ $# -gt 0 ] || chosen=("${parts[@]}")
for part in "${chosen[@]}"; do
  [ -n "${commands[$part]:-}" ] || fail "unknown part: $part; see $0 --list"
done
mkdir -p build/proof
for part in "${chosen[@]}"; do
  echo "== $part"
  "${commands[$part]}" | tee "build/proof/$part.log"
  record "$part" "$(tail -n 1 "build/proof/$part.log")"
done
