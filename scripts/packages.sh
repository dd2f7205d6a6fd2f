#!/usr/bin/env bash
# Builds the Debian packages in build/packages, for Qt 5 and for Qt 6, and checks them with lintian: packages.sh
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --package --qt6
./scripts/build.sh release
./scripts/build.sh qt6-packages
rm -rf build/packages
mkdir -p build/packages
for preset in release qt6-packages; do
  (cd "build/$preset" && cpack -G DEB -B ../packages) >build/packages/cpack.log 2>&1 ||
    { cat build/packages/cpack.log >&2; exit 1; }
  rm -rf build/packages/_CPack_Packages
done
# The packages are not meant for Debian's archive and have no license yet; CPack writes the calls of ldconfig.
lintian --allow-root --fail-on error build/packages/*.deb \
  --suppress-tags initial-upload-closes-no-bugs,copyright-without-copyright-notice,maintscript-calls-ldconfig
ls build/packages/*.deb
