#!/usr/bin/env bash
# Checks that qmllint knows the installed types: check-qml-types.sh IMPORT_FOLDER GOOD_FILE
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
imports=$1 good=$2
create_work_folder
# Debian's qmllint lacks a file of its own and warns about it as an import.
lint() { timeout 60 /usr/lib/qt6/bin/qmllint -I "$imports" --import info "$@" 2>&1; }

answer=$(lint "$good") || fail "$answer"$'\n'"qmllint rejects $good"
sed 's/getColor/getColorOf/' "$good" >"$work/bad.qml"
answer=$(lint "$work/bad.qml") && fail "qmllint accepts a misspelled method"
[[ $answer == *'Did you mean "getColor"?'* ]] || fail "$answer"$'\n'"qmllint does not know the method getColor"
