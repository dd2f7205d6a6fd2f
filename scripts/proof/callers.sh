#!/usr/bin/env bash
# Floods the service with hostile calls: callers.sh [COUNT]
# COUNT is 200,000 for each user. Prints the figures in its last line. Fails if a sanitizer reports something, if the
# service ends, if a good call fails or if memory grows. The sanitizers watch the service in the first run; time and
# memory are those of the release build. As root, the callers are root and another user.
set -euo pipefail
. "$(dirname "$0")/../lib/common.sh"
cd "$(dirname "$0")/../.."
count=${1:-200000}
logs=build/proof
export QT_QPA_PLATFORM=minimal

./scripts/install-dependencies.sh
mkdir -p "$logs"
for preset in dev release; do
  ./scripts/build.sh "$preset" CallerTest
  for depth in 128 1000; do
    log=$logs/callers-$preset-$depth.log
    timeout --foreground 3600 "build/$preset/tests/CallerTest" "$count" "$depth" >"$log" 2>&1 ||
      { grep -a 'FAIL!\|ERROR:\|runtime error' "$log" >&2; fail "CallerTest failed; see $log"; }
    grep -a ' calls: ' "$log" | sed "s/^/$preset, $depth in flight: /"
  done
done
made=$(cat "$logs"/callers-*.log | grep -aoP '^\d+(?= calls: )' | awk '{ sum += $1 } END { print sum }')
longest=$(cat "$logs"/callers-release-*.log | grep -aoP 'at most \K\d+' | sort -n | tail -n 1)
next=$(cat "$logs"/callers-release-*.log | grep -aoP '\d+(?= ms after them)' | sort -n | tail -n 1)
memory=$(grep -ahoP ': \K.* MB after' "$logs"/callers-release-128.log | head -n 1)
printf '%d hostile calls: no report of a sanitizer; %s; in the release build, a good call took at most %d ms meanwhile and %d ms after them\n' \
  "$made" "$memory" "$longest" "$next"
