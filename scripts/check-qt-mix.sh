#!/usr/bin/env bash
# Checks that hosts and services work together that are built with Qt 5 and with Qt 6: check-qt-mix.sh
# Each gallery asks each service for all resources: for sound ones, for faulty ones and for missing ones.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --qt6
presets=(dev qt6-dev)
for preset in "${presets[@]}"; do ./scripts/build.sh "$preset" tarnis-module tarnis-gallery; done
create_work_folder
export QT_QPA_PLATFORM=minimal QT_FONT_DPI=96 ASAN_OPTIONS=detect_leaks=0

mkdir "$work/missing"
cp -r resources "$work/sound"
cp -r resources "$work/faulty"
echo '{"alias"' >"$work/faulty/icons/mapping.json"
rm "$work/faulty/fonts.ini"
mv "$work/faulty/dimensions" "$work/faulty/sizes"
start_private_bus

# What the gallery of one preset prints about the resources that the service of another one publishes:
# answers PRESET_OF_SERVICE PRESET_OF_HOST DIRECTORY
answers() {
  local service
  start_service "build/$1/TarnisModule/tarnis-module" "$work/$3"
  service=${processes[-1]}
  timeout 60 "$(find "build/$2/Gallery" -maxdepth 1 -type f -name 'tarnis-gallery*')" --dump 2>&1 || echo "exit status $?"
  stop "$service" >&2 || true
}

for directory in sound faulty missing; do
  expected=''
  for service in "${presets[@]}"; do
    for host in "${presets[@]}"; do
      answers "$service" "$host" "$directory" >"$work/answers"
      [ -n "$expected" ] || { expected=$work/expected-$directory && cp "$work/answers" "$expected"; }
      diff "$expected" "$work/answers" ||
        fail "$host answers differently when $service publishes the resources \"$directory\""
    done
  done
  echo "$directory resources: the same $(wc -l <"$expected") lines from all four pairs."
done
grep -q '"text://Button/Ok": "OK"' "$work/expected-sound" || fail "the galleries print no texts"
