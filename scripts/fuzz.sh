#!/usr/bin/env bash
# Runs the fuzzers of the code that reads foreign input: fuzz.sh [SECONDS]
# Each fuzzer first replays the inputs that failed earlier and then runs for SECONDS (60), two at a time. An input that
# fails is saved below build/fuzz/failures/.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
export SECONDS_EACH=${1:-60} QT_HASH_SEED=0
export ASAN_OPTIONS=quarantine_size_mb=16:malloc_context_size=8
mapfile -t fuzzers < <(basename -s .cpp fuzz/*Fuzzer.cpp)

./scripts/install-dependencies.sh --lint
./scripts/build.sh fuzz fuzzers
python3 fuzz/seeds.py resources build/fuzz/corpus
shared_memory=/dev/shm
[ -w "$shared_memory" ] || shared_memory=/tmp
work=$(mktemp -d "$shared_memory/fuzz.XXXXXX")
export TMPDIR=$work

fuzz() {
  local name=$1 log=build/fuzz/$1.log failures=build/fuzz/failures/$1 length=512 regressions=() dictionary=()
  mkdir -p "$failures"
  local options=(-artifact_prefix="$failures/" -timeout=10 -rss_limit_mb=2048)
  # Qt leaks memory on a JSON text that ends within an object; code that uses Qt cannot prevent it.
  [[ $name = IniFuzzer || $name = ReplyFuzzer ]] || ASAN_OPTIONS+=:detect_leaks=0
  [[ $name != QmlFuzzer && $name != SvgFuzzer ]] || length=4096 # a short file of these kinds says little
  [ ! -f "fuzz/$name.dict" ] || dictionary=(-dict="fuzz/$name.dict")
  [ ! -d "fuzz/regressions/$name" ] || regressions=("fuzz/regressions/$name"/*)
  if ! {
    { [ ${#regressions[@]} -eq 0 ] || "build/fuzz/fuzz/$name" "${options[@]}" "${regressions[@]}"; } >"$log" 2>&1 &&
      "build/fuzz/fuzz/$name" "${options[@]}" "${dictionary[@]}" -max_total_time="$SECONDS_EACH" -max_len="$length" \
        -print_final_stats=1 "build/fuzz/corpus/$name" >>"$log" 2>&1
  }; then
    tail -n 60 "$log"
    echo "$name failed. The input was saved: $(grep -o 'Test unit written to .*' "$log" | tail -n 1 | cut -d ' ' -f 5)"
    echo "Copy it to fuzz/regressions/$name/ under a name that describes the fault, so that it is replayed."
    return 1
  fi
  awk -v name="$name" '
    /inline 8-bit counters\):/ { gsub(/[^0-9]/, "", $5); edges = $5 }
    $2 == "DONE" { for (i = 1; i < NF; ++i) if ($i == "cov:") covered = $(i + 1) }
    /number_of_executed_units/ { inputs = $2 }
    /average_exec_per_sec/ { rate = $2 }
    END { printf "%s: %d inputs, %d per second, %d of %d edges\n", name, inputs, rate, covered, edges }' "$log"
}
export -f fuzz
# shellcheck disable=SC2016 # the shell that xargs starts expands it
printf '%s\n' "${fuzzers[@]}" | xargs -n 1 -P 2 bash -euo pipefail -c 'fuzz "$1"' fuzz
