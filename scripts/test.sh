#!/usr/bin/env bash
# Builds everything and runs every test: test.sh [PRESET] (dev: with sanitizers)
# test.sh --valgrind runs the tests of the library under valgrind memcheck instead; that takes some minutes.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-dev}
if [ "$preset" = --valgrind ]; then
  ./scripts/install-dependencies.sh --valgrind
  ./scripts/build.sh valgrind
  for test in HandlerTest TroubleTest ServiceTest HostileTest; do
    echo "== $test"
    # valgrind cannot follow what the compiler of regular expressions makes.
    QT_ENABLE_REGEXP_JIT=0 QT_QPA_PLATFORM=minimal QT_FONT_DPI=96 QTEST_FUNCTION_TIMEOUT=3600000 \
      valgrind --quiet --error-exitcode=99 --suppressions=tests/support/valgrind.supp \
      --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite "build/valgrind/tests/$test"
  done
  exit
fi
./scripts/install-dependencies.sh
./scripts/build.sh "$preset"
ctest --preset "$preset"
