#!/usr/bin/env bash
# Makes the Debian packages in build/packages, and has lintian read them.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --package
./scripts/build.sh release
rm -rf build/packages
mkdir -p build/packages
(cd build/release && cpack -G DEB -B ../packages) >build/packages/cpack.log 2>&1 ||
  { cat build/packages/cpack.log >&2; exit 1; }
rm -rf build/packages/_CPack_Packages
# They are not for Debian's archive, and nobody chose a licence; the calls of ldconfig are CPack's.
lintian --allow-root --fail-on error build/packages/*.deb \
  --suppress-tags initial-upload-closes-no-bugs,copyright-without-copyright-notice,maintscript-calls-ldconfig
ls build/packages/*.deb
