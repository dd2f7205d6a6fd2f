#!/usr/bin/env bash
# Checks that qmllint knows the installed types: check-qml-types.sh IMPORT_DIRECTORY GOOD_FILE
set -euo pipefail
imports=$1 good=$2
# Debian's qmllint misses a file of its own among its imports, and says so as a warning.
lint() { /usr/lib/qt6/bin/qmllint -I "$imports" --import info "$@" 2>&1; }

answer=$(lint "$good") || { echo "$answer"; echo "qmllint has something to say of $good" >&2; exit 1; }
bad=$(mktemp --suffix=.qml)
trap 'rm "$bad"' EXIT
sed 's/getColor/getColour/' "$good" >"$bad"
answer=$(lint "$bad") && { echo "qmllint is content with a misspelt method" >&2; exit 1; }
[[ $answer == *'Did you mean "getColor"?'* ]] || { echo "$answer"; echo "qmllint does not know the method" >&2; exit 1; }
