#!/usr/bin/env bash
# Writes what the documentation says of the checker's rules: the page docs/checker-rules.md, and the table of log records
# in docs/resource-formats.md: rules-page.sh CHECKER [--check]
# With --check it only fails if they do not show the current rules.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
checker=$1
create_work_folder
"$checker" --list-rules --format markdown >"$work/checker-rules.md"
{ echo '<!-- records -->'; "$checker" --list-records; echo '<!-- end of records -->'; } >"$work/records"
sed -e "/^<!-- records -->/r $work/records" -e '/^<!-- records -->/,/^<!-- end of records -->/d' \
  docs/resource-formats.md >"$work/resource-formats.md"

for page in checker-rules.md resource-formats.md; do
  if [ "${2:-}" != --check ]; then
    cp "$work/$page" "docs/$page"
  elif ! diff "docs/$page" "$work/$page"; then
    fail "docs/$page does not show the current rules; run ./scripts/rules-page.sh build/dev/ResourceCheck/tarnis-resource-check"
  fi
done
