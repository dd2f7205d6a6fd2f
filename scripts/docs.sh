#!/usr/bin/env bash
# Builds the reference of the public headers, build/docs/html/annotated.html, and checks the Markdown pages: docs.sh
# Fails on every Doxygen warning, on a broken link to a file or heading, and if the host that docs/getting-started.md
# shows is not the one in examples/host.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --docs
rm -rf build/docs
mkdir -p build
doxygen docs/Doxyfile

# shellcheck disable=SC2016 # the backticks are Markdown's
without_code() { sed '/^```/,/^```/d' "$1"; }

# The headings of a page, as links write them behind "#".
anchors() { without_code "$1" | sed -n 's/^##* //p' | tr '[:upper:] ' '[:lower:]-' | tr -cd '[:alnum:]_\n-'; }

links=0 failures=0
while IFS= read -r -d '' page; do
  for link in $(without_code "$page" | grep -oP '\]\((?!https?://)\K[^)]+'); do
    links=$((links + 1))
    target=${link%%#*}
    file=$(dirname "$page")/$target
    [ -n "$target" ] || file=$page
    [ -e "$file" ] && { [ "$target" = "$link" ] || anchors "$file" | grep -qxF -e "${link#*#}"; } && continue
    echo "$page: broken link: $link" >&2
    failures=$((failures + 1))
  done
done < <(git ls-files -z --cached --others --exclude-standard '*.md')
for file in $(git ls-files --cached --others --exclude-standard examples/host); do
  [[ $(<docs/getting-started.md) = *"$(<"$file")"* ]] && continue
  echo "docs/getting-started.md: does not contain the current text of $file" >&2
  failures=$((failures + 1))
done
[ "$failures" -eq 0 ]
echo "build/docs/html/annotated.html; $links links checked"
