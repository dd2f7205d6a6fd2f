#!/usr/bin/env bash
# Builds the Debian packages in build/packages and checks them with lintian: packages.sh
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --package
./scripts/build.sh release
rm -rf build/packages
mkdir -p build/packages
(cd build/release && cpack -G DEB -B ../packages) >build/packages/cpack.log 2>&1 ||
  { cat build/packages/cpack.log >&2; exit 1; }
rm -rf build/packages/_CPack_Packages
# The packages are not meant for Debian's archive and have no license yet; CPack writes the calls of ldconfig.
lintian --allow-root --fail-on error build/packages/*.deb \
  --suppress-tags initial-upload-closes-no-bugs,copyright-without-copyright-notice,maintscript-calls-ldconfig
ls build/packages/*.deb
