#!/usr/bin/env bash
# Checks the QML code of Debian's Kirigami, Plasma and Qt Quick Controls packages, which use no resources: precision.sh
# The packages are unpacked, not installed. Prints the figures in its last line. Fails if a rule for QML has a finding,
# or if the checker needs more than 10 s of processor time for a package.
set -euo pipefail
. "$(dirname "$0")/../lib/common.sh"
cd "$(dirname "$0")/../.."
packages=(
  qml-module-org-kde-kirigami2 qml-module-org-kde-kirigami-addons-labs-mobileform
  qml-module-org-kde-kirigami-addons-treeview qml-module-org-kde-qqc2breezestyle qml-module-org-kde-qqc2desktopstyle
  qml-module-org-kde-quickcharts plasma-framework plasma-workspace plasma-workspace-data plasma-desktop-data
  qml-module-qtquick-controls qml-module-qtquick-controls2 qml-module-qtquick-dialogs qml-module-qtquick-extras
)
export QT_QPA_PLATFORM=minimal

./scripts/install-dependencies.sh
./scripts/build.sh release tarnis-resource-check
create_work_folder
(cd "$work" && { apt-get download -q "${packages[@]}" || { apt-get update -qq && apt-get download -q "${packages[@]}"; }; }) \
  >/dev/null 2>&1 || fail "cannot download the packages"

files=0
slowest=0
TIMEFORMAT='%U %S'
for package in "${packages[@]}"; do
  dpkg-deb -x "$work/$package"_*.deb "$work/$package"
  count=$(find "$work/$package" -name '*.qml' | wc -l)
  [ "$count" -gt 0 ] || fail "$package has no QML files"
  { time timeout --foreground 60 build/release/ResourceCheck/tarnis-resource-check --keep '*' --qml "$work/$package" \
      resources >"$work/findings" 2>&1; } 2>"$work/time" || { cat "$work/findings" >&2; fail "$package has findings"; }
  needed=$(awk '{ printf "%d", ($1 + $2) * 1000 }' "$work/time")
  [ "$needed" -le 10000 ] || fail "the checker needed $needed ms for $package"
  echo "$package: $count files, $needed ms"
  files=$((files + count))
  slowest=$((needed > slowest ? needed : slowest))
done
echo "no finding in $files QML files of ${#packages[@]} packages; the checker needed at most $slowest ms of processor time for a package"
