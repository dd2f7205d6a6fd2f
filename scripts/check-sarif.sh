#!/usr/bin/env bash
# Checks the SARIF output with the validator of the format's editors, which comes from npm: check-sarif.sh
# Without npm, it checks nothing and says so. The tests validate the output against a part of the schema in any case.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
version=5.7.0

command -v npm >/dev/null || { echo "npm is not installed: the SARIF output is not checked."; exit; }
./scripts/install-dependencies.sh
./scripts/build.sh release tarnis-resource-check
create_work_folder
npm install --silent --no-audit --no-fund --prefix "$work" "@microsoft/sarif-multitool@$version"
chmod u+x "$work"/node_modules/@microsoft/sarif-multitool-linux/Sarif.Multitool

checker=build/release/ResourceCheck/tarnis-resource-check
for directory in tests/rules/*/fault; do
  name=$(basename "$(dirname "$directory")")
  qml=()
  [ ! -d "$directory/qml" ] || qml=(--qml "$directory/qml")
  status=0
  "$checker" --format sarif "${qml[@]}" "$directory" >"$work/$name.sarif" 2>"$work/errors" || status=$?
  [ "$status" -le 1 ] || { cat "$work/errors" >&2; fail "$directory: exit status $status"; }
done
files=("$work"/*.sarif)

# The validator also exits with 0 for an invalid file.
validate() { "$work/node_modules/.bin/sarif-multitool" validate "$@" --log ForceOverwrite --output "$work/result.json"; }
sed '0,/"message"/s//"massage"/' "${files[0]}" >"$work/wrong.sarif"
validate "$work/wrong.sarif" | grep -q ': error ' || fail "the validator accepts a wrong file"
output=$(validate "${files[@]}")
grep ': error ' <<<"$output" && fail "the SARIF output is not valid"
grep -q "Done. ${#files[@]} files scanned" <<<"$output" || fail "not all files were checked: $output"
echo "${#files[@]} SARIF files are valid."
