#!/usr/bin/env bash
# Measures the library against its alternatives, side by side: benchmark.sh [--quick]
# Leaves build/benchmark/report.md with its plots. Fails if a goal is missed twice, the second time with more
# repetitions, or if a lookup needs over 5 % more instructions than benchmarks/instructions.txt allows.
# The gallery and the checker are measured by the clock, in medians of 10, so five times their goals are tolerated.
# --quick takes fewer repetitions and leaves out the mapping table of a million aliases.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
case ${1:-} in
  '') options=(--benchmark_repetitions=15 --benchmark_min_time=0.05) ;;
  --quick) options=(--benchmark_repetitions=7 --benchmark_min_time=0.002 '--benchmark_filter=-/1000000(/|$)') ;;
  *) echo "usage: $0 [--quick]" >&2; exit 2 ;;
esac

./scripts/install-dependencies.sh --benchmark
./scripts/breeze-resources.sh >/dev/null
cmake --preset release -DTARNIS_BUILD_BENCHMARKS=ON >/dev/null
./scripts/build.sh release
programs=build/release/benchmarks
results=build/benchmark
rm -rf "$results"
mkdir -p "$results/again"
create_work_folder

# Runs a program to be measured. KIconLoader finds themes through XDG_DATA_DIRS and keeps a cache.
measured() {
  env QT_QPA_PLATFORM=minimal QT_LOGGING_RULES='kf.*=false' XDG_RUNTIME_DIR="$work" XDG_CACHE_HOME="$work/cache" \
    XDG_DATA_DIRS="$PWD/build/breeze:/usr/share" "$@"
}

# Runs one benchmark program: run_benchmark NAME RESULT_FOLDER OPTION...
run_benchmark() {
  measured "$programs/$1Benchmark" --benchmark_enable_random_interleaving=true --benchmark_out_format=json \
    --benchmark_out="$2/$1.json" "${@:3}" >"$2/$1.log" 2>&1 || { cat "$2/$1.log" >&2; fail "$1Benchmark failed"; }
}

for program in "$programs"/*Benchmark; do
  name=$(basename "$program" Benchmark)
  echo "$name"
  run_benchmark "$name" "$results" "${options[@]}"
done

echo "System calls"
for subject in getIconPath QFile-exists QIcon-warm QIcon-cold KIconLoader-warm KIconLoader-cold geometry-event; do
  measured strace -o "$results/strace.log" "$programs/Probe" "$subject" 10
  calls=$(awk '/write\(-1, "end"/ { exit } begun { ++calls } /write\(-1, "begin"/ { begun = 1 } END { print calls / 10 }' \
    "$results/strace.log")
  echo "$subject $calls" >>"$results/system-calls.txt"
done

echo "Instructions"
for subject in getColor getColor-miss getFontFamily getFontPointSize getIconPath getIconPathAsFileUrl \
  uiElementDimensions geometry-event; do
  # memcmp() needs more instructions near the end of a page. The lowest of three placements of the heap counts.
  for shift in 0 1500 3000; do
    QT_HASH_SEED=0 LD_BIND_NOW=1 measured valgrind --tool=callgrind --callgrind-out-file=/dev/null --collect-atstart=no \
      --toggle-collect='*measured*' "$programs/Probe" "$subject" 100 $shift >"$results/callgrind$shift.log" 2>&1 &
  done
  wait
  echo "$subject $(awk '/Collected :/ { print int($4 / 100) }' "$results"/callgrind*.log | sort -n | head -n 1)" \
    >>"$results/instructions.txt"
done

echo "Cost of the library"
library=build/release/TarnisLibrary/libTarnisLibrary.so
strip -o "$results/stripped.so" "$library"
{
  echo "stripped size (bytes) $(stat -Lc %s "$results/stripped.so")"
  echo "relocations $(readelf -rW "$library" | grep -c R_)"
  echo "exported symbols $(nm -D --defined-only "$library" | wc -l)"
} >"$results/library.txt"
for _ in $(seq 11); do
  LD_BIND_NOW=1 measured "$programs/BareHost" "$library" >>"$results/bare-host.txt"
  LD_BIND_NOW=1 measured "$programs/LibraryHost" >>"$results/library-host.txt"
done

/usr/bin/python3 -B benchmarks/report missed "$results" >"$results/missed.txt"
while read -r name filter; do
  echo "Again: $name $filter"
  run_benchmark "$name" "$results/again" --benchmark_repetitions=31 --benchmark_min_time=0.05 "--benchmark_filter=$filter"
done <"$results/missed.txt"
/usr/bin/python3 -B benchmarks/report write "$results" benchmarks/instructions.txt
