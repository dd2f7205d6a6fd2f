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

TARNIS_RECALL=all timeout --foreground 7200 build/release/tests/RecallTest -maxwarnings 0 >"$logs/recall-test.log" 2>&1 ||
  { grep -a 'QWARN\|FAIL!' "$logs/recall-test.log" >&2; fail "RecallTest failed; see $logs/recall-test.log"; }
tail -n 1 "$logs/recall-test.log"
