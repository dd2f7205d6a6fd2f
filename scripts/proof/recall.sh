#!/usr/bin/env bash
# Compares the checker with a device: recall.sh
# Misspells each name in the sample front end and in those in tests/frontends, removes each resource, and lets the
# checker and the gallery's front end read the result. Checks the QML code of Qt and KDE that is installed, too, which
# uses no resources. Prints the figures in its last line. Fails if the device logs a fault that the checker has not
# announced and tests/data/RecallTest/misses.txt does not list, or if sound code has a finding.
set -euo pipefail
. "$(dirname "$0")/../lib/common.sh"
cd "$(dirname "$0")/../.."
logs=build/proof
export QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96

./scripts/install-dependencies.sh
./scripts/build.sh release RecallTest tarnis-resource-check
mkdir -p "$logs"

files=0
for directory in /usr/lib/*/qt5/qml/QtQuick /usr/lib/*/qt5/qml/org/kde /usr/share/plasma; do
  [ -d "$directory" ] || continue
  timeout --foreground 60 build/release/ResourceCheck/tarnis-resource-check --keep '*' --qml "$directory" resources ||
    fail "$directory has findings"
  files=$((files + $(find "$directory" -name '*.qml' | wc -l)))
done
[ "$files" -gt 0 ] || fail "no QML code of Qt is installed"

TARNIS_RECALL=all timeout --foreground 7200 build/release/tests/RecallTest -maxwarnings 0 >"$logs/recall-test.log" 2>&1 ||
  { grep -a 'QWARN\|FAIL!' "$logs/recall-test.log" >&2; fail "RecallTest failed; see $logs/recall-test.log"; }
echo "$(tail -n 1 "$logs/recall-test.log"); no finding in $files QML files of Qt and KDE"
