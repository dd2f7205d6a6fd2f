#!/usr/bin/env bash
# Tags a release and packs its sources in build/release-VERSION/libtarnislibrary-VERSION.tar.gz: release.sh VERSION
# Requires a clean tree on the branch main, VERSION in CMakeLists.txt and CHANGELOG.md, and tests that pass. The archive
# has the same bytes on every machine. Nothing is pushed.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
[ $# -eq 1 ] || { echo "usage: $0 VERSION" >&2; exit 2; }
version=$1 tag=v$1 name=libtarnislibrary-$1

[ -z "$(git status --porcelain)" ] || fail "the tree is not clean: see git status"
[ "$(git branch --show-current)" = main ] || fail "switch to the branch main: releases are made there"
grep -qxF "project(TarnisLibrary VERSION $version LANGUAGES CXX" CMakeLists.txt ||
  fail "CMakeLists.txt does not have the version $version: $(grep -o 'project(.*VERSION [^ ]*' CMakeLists.txt)"
grep -qxE "## \[${version//./\\.}\] - [0-9]{4}-[0-9]{2}-[0-9]{2}" CHANGELOG.md ||
  fail "CHANGELOG.md has no section \"## [$version] - $(date +%F)\""
! git rev-parse -q --verify "refs/tags/$tag" >/dev/null || fail "the tag $tag already exists"
./scripts/test.sh

git tag -a "$tag" -m "libTarnisLibrary $version"
mkdir -p "build/release-$version"
git -c tar.umask=0022 archive --format=tar --prefix="$name/" "$tag" | gzip -9n >"build/release-$version/$name.tar.gz"
(cd "build/release-$version" && sha256sum "$name.tar.gz" | tee "$name.tar.gz.sha256")
echo "Tagged $tag. To publish it: git push origin main $tag"
