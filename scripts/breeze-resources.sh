#!/usr/bin/env bash
# Makes a large resource directory from Debian's Breeze packages: breeze-resources.sh [DIRECTORY]
# The default is build/breeze. Every icon file becomes an alias, with the light theme as defaultContext and the dark one
# as nightMode. The colors are copied from the .colors files.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
target=${1:-build/breeze}
[ -e "$target/icons/mapping.json" ] && { echo "$target"; exit 0; }
./scripts/install-dependencies.sh

create_work_folder
for package in breeze-icon-theme kde-style-breeze; do
  (cd "$work" && { apt-get download -q "$package" || { apt-get update -qq && apt-get download -q "$package"; }; }) >/dev/null 2>&1 ||
    fail "cannot download the package $package"
  dpkg-deb -x "$work/$package"_*.deb "$work/root"
done
mkdir -p "$target"
python3 scripts/breeze_resources.py "$work/root/usr/share" "$target"
echo "$target"
