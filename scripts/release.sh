#!/usr/bin/env bash
# Tags a release and packs its sources: release.sh VERSION
# Insists on a clean tree on main, on VERSION in CMakeLists.txt and CHANGELOG.md, and on tests that pass. Leaves
# build/release-VERSION/libtarnislibrary-VERSION.tar.gz, the same bytes wherever it is made. Nothing is pushed.
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -eq 1 ] || { echo "usage: $0 VERSION" >&2; exit 2; }
version=$1 tag=v$1 name=libtarnislibrary-$1

fail() { echo "$*" >&2; exit 1; }
[ -z "$(git status --porcelain)" ] || fail "The tree is not clean: see git status."
[ "$(git branch --show-current)" = main ] || fail "A release is made on the branch main."
grep -qxF "project(TarnisLibrary VERSION $version LANGUAGES CXX" CMakeLists.txt ||
  fail "CMakeLists.txt says: $(grep -o 'project(.*VERSION [^ ]*' CMakeLists.txt)"
grep -qxE "## \[${version//./\\.}\] - [0-9]{4}-[0-9]{2}-[0-9]{2}" CHANGELOG.md ||
  fail "CHANGELOG.md has no section \"## [$version] - $(date +%F)\"."
! git rev-parse -q --verify "refs/tags/$tag" >/dev/null || fail "The tag $tag exists already."
./scripts/test.sh

git tag -a "$tag" -m "libTarnisLibrary $version"
mkdir -p "build/release-$version"
git -c tar.umask=0022 archive --format=tar --prefix="$name/" "$tag" | gzip -9n >"build/release-$version/$name.tar.gz"
(cd "build/release-$version" && sha256sum "$name.tar.gz" | tee "$name.tar.gz.sha256")
echo "Tagged $tag. To publish it: git push origin main $tag"
