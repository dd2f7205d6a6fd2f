#!/usr/bin/env bash
# Draws the recorded pictures of the gallery again, which tests compare with: update-pictures.sh [--qt6]
# --qt6 draws those of the build with Qt 6, whose controls have another style.
# Look at each changed picture before you commit it. The name of a file tells what it shows:
# PAGE-WxH-THEME.png. For another picture, add an empty file with its name first.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
suffix=${1:+-qt6} preset=${1:+qt6-}release
./scripts/install-dependencies.sh ${1:+--qt6}
./scripts/build.sh "$preset" tarnis-gallery

create_work_folder
start_screen
for picture in "tests/pictures$suffix"/*.png; do
  IFS=- read -r page size theme < <(basename "$picture" .png)
  timeout 60 "build/$preset/Gallery/tarnis-gallery$suffix" resources --page "$page" --size "$size" --theme "$theme" \
    --screenshot "$picture" 2>>"$process_log" || { cat "$process_log" >&2; fail "cannot draw $picture"; }
  echo "$picture"
done
