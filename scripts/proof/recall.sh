#!/usr/bin/env bash
# Compares the checker with a device: recall.sh
# Misspells each name in the sample front end and in those in tests/frontends, removes each resource, and lets the
# checker and the gallery's front end read the result. Prints the figures in its last line. Fails if the device logs a
# fault that the checker has not announced.
set -euo pipefail
. "$(dirname "$0")/../lib/common.sh"
cd "$(dirname "$0")/../.."
logs=build/proof
export QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96

./scripts/install-dependencies.sh
./scripts/build.sh release RecallTest
mkdir -p "$logs"

front_ends=(sample)
for directory in tests/frontends/*/; do front_ends+=("$(basename "$directory")"); done
tests=()
for front_end in "${front_ends[@]}"; do
  TARNIS_RECALL=all timeout --foreground 7200 build/release/tests/RecallTest -maxwarnings 0 \
    "everyFaultThatADeviceLogsIsAnnounced:$front_end" everyListedFaultIsLogged >"$logs/recall-$front_end.log" 2>&1 &
  tests+=("$!")
  processes+=("$!")
done
for index in "${!tests[@]}"; do
  wait "${tests[$index]}" && continue
  log=$logs/recall-${front_ends[$index]}.log
  grep -a 'QWARN\|FAIL!' "$log" >&2 || true
  fail "RecallTest failed; see $log"
done
# The sums of the figures in the last lines, which have the same words.
for front_end in "${front_ends[@]}"; do tail -n 1 "$logs/recall-$front_end.log"; done | awk '
  { for (i = 1; i <= NF; ++i) if ($i ~ /^\(?[0-9]+$/) { number = $i; sub(/^\(/, "", number); sum[i] += number } }
  END { for (i = 1; i <= NF; ++i) if (i in sum) $i = ($i ~ /^\(/ ? "(" : "") sum[i]; print }'
