#!/usr/bin/env bash
# Rewrites each QML file of the front ends in ways that change nothing: rewriting.sh
# Prints the figures in its last line. Fails if the checker then has other findings.
set -euo pipefail
. "$(dirname "$0")/../lib/common.sh"
cd "$(dirname "$0")/../.."
export QT_QPA_PLATFORM=minimal

./scripts/install-dependencies.sh
./scripts/build.sh release QmlRewriteTest
mkdir -p build/proof
timeout --foreground 1200 build/release/tests/QmlRewriteTest >build/proof/rewriting-test.log 2>&1 ||
  { grep -a -A 3 'FAIL!' build/proof/rewriting-test.log >&2; fail "QmlRewriteTest failed; see build/proof/rewriting-test.log"; }
tail -n 1 build/proof/rewriting-test.log
