#!/usr/bin/env bash
# Builds everything and runs all tests: test.sh [PRESET] | --valgrind
# The default preset is dev, with sanitizers. --valgrind runs the tests of the library, its host and the
# service under memcheck instead, which takes some minutes.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
preset=${1:-dev}
if [ "$preset" = --valgrind ]; then
  ./scripts/install-dependencies.sh --valgrind
  ./scripts/build.sh valgrind TarnisLibrary
  mapfile -t tests < <(ctest --test-dir build/valgrind -N -L memcheck | grep -oP '^ *Test +#\d+: \K\w+$')
  [ ${#tests[@]} -gt 0 ] || fail "no test has the label memcheck"
  ./scripts/build.sh valgrind "${tests[@]}"
  for test in "${tests[@]}"; do
    echo "== $test"
    # valgrind cannot follow the machine code that Qt generates for regular expressions.
    QT_ENABLE_REGEXP_JIT=0 QT_QPA_PLATFORM=minimal QT_FONT_DPI=96 QTEST_FUNCTION_TIMEOUT=3600000 \
      valgrind --quiet --fair-sched=yes --error-exitcode=99 --suppressions=tests/support/valgrind.supp \
      --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite "build/valgrind/tests/$test"
  done
  exit
fi
options=(--browser)
[[ $preset != qt6-* ]] || options+=(--qt6)
[ "$preset" != ci ] || options+=(--lint --benchmark) # clang, and what the benchmarks need
./scripts/install-dependencies.sh "${options[@]}"
./scripts/build.sh "$preset"
ctest --preset "$preset"
