#!/usr/bin/env bash
# Makes a large resource directory from Debian's Breeze packages: breeze-resources.sh [DIR] (build/breeze)
# Every icon file is an alias, with the light theme as defaultContext and the dark one as nightMode; the colours are
# those of the .colors files, as they stand.
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-build/breeze}
[ -e "$target/icons/mapping.json" ] && { echo "$target"; exit 0; }
./scripts/install-dependencies.sh

download=$(mktemp -d)
trap 'rm -rf "$download"' EXIT
for package in breeze-icon-theme kde-style-breeze; do
  (cd "$download" && { apt-get download -q "$package" || { apt-get update -qq && apt-get download -q "$package"; }; }) >/dev/null 2>&1 ||
    { echo "Cannot download the package $package." >&2; exit 1; }
  dpkg-deb -x "$download/$package"_*.deb "$download/root"
done
mkdir -p "$target"
python3 scripts/breeze_resources.py "$download/root/usr/share" "$target"
echo "$target"
