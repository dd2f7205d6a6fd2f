#!/usr/bin/env bash
# Lets the checker and a device read damaged resource directories: damage.sh [COUNT]
# COUNT is 10,000. Prints the figures in its last line. Fails if the checker or the device crashes, if the device logs
# something that the checker has not announced, or if the checker needs more than 2 s or 200 MB for a directory.
# The sanitizers watch the checker in the test program. Time and memory are those of the release build in a process of
# its own. Memory includes what the test program has when it starts the process.
set -euo pipefail
. "$(dirname "$0")/../lib/common.sh"
cd "$(dirname "$0")/../.."
count=${1:-10000}
logs=build/proof
export QT_QPA_PLATFORM=minimal
export ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=16:malloc_context_size=8 # Qt's JSON reader leaks

./scripts/install-dependencies.sh
./scripts/build.sh dev DamageTest
./scripts/build.sh release DamageTest tarnis-resource-check
rm -rf "$logs/damage"
mkdir -p "$logs/damage"

# Runs the test with all directories, one part of them on each core: test_all PRESET [CHECKER]
test_all() {
  local parts part tests=()
  parts=$(nproc)
  for ((part = 0; part < parts; ++part)); do
    timeout --foreground 14400 "build/$1/tests/DamageTest" $((count * part / parts + 1)) $((count * (part + 1) / parts)) \
      1 "${@:2}" >"$logs/damage/$1-$part.log" 2>&1 &
    tests+=("$!")
    processes+=("$!")
  done
  for ((part = 0; part < parts; ++part)); do
    wait "${tests[$part]}" && continue
    grep -aA 5 -m 5 'FAIL!\|ERROR:\|runtime error\|signal' "$logs/damage/$1-$part.log" >&2 || true
    fail "DamageTest failed; see $logs/damage/$1-$part.log"
  done
}

# The sum or the highest of the numbers before a unit, in the logs of a preset.
sum() { grep -ahoP "^\d+(?= $2\$)" "$logs/damage/$1"-*.log | awk '{ sum += $1 } END { print sum }'; }
highest() { grep -ahoP "\d+(?= $2)" "$logs/damage/$1"-*.log | sort -n | tail -n 1; }

test_all release "$PWD/build/release/ResourceCheck/tarnis-resource-check"
test_all dev
tested=$(cat "$logs"/damage/dev-*.log | grep -ac '^PASS.*([0-9][0-9]*)$')
time=$(highest release 'ms of processor time')
memory=$(highest release 'MB$')
[ "$tested" -eq "$count" ] || fail "$tested of $count directories were tested"
[ "$((time <= 2000 && memory <= 200))" -eq 1 ] || fail "the checker needed $time ms and $memory MB"
printf "%d damaged directories: no crash, all %d records of the device announced; the checker needed at most %d ms of processor time and %d MB\n" \
  "$tested" "$(sum dev records)" "$time" "$memory"
