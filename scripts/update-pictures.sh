#!/usr/bin/env bash
# Draws the recorded pictures of the gallery again, which tests compare with: update-pictures.sh
# Look at each changed picture before you commit it. The name of a file in tests/pictures/ tells what it shows:
# PAGE-WxH-THEME.png. For another picture, add an empty file with its name first.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh
./scripts/build.sh release tarnis-gallery

create_work_folder
start_screen
for picture in tests/pictures/*.png; do
  IFS=- read -r page size theme < <(basename "$picture" .png)
  timeout 60 build/release/Gallery/tarnis-gallery resources --page "$page" --size "$size" --theme "$theme" \
    --screenshot "$picture" 2>>"$process_log" || { cat "$process_log" >&2; fail "cannot draw $picture"; }
  echo "$picture"
done
