#!/usr/bin/env bash
# Makes the reference of the public headers and checks the pages beside it: docs.sh
# Leaves build/docs/html/annotated.html. Fails on every warning of Doxygen, on a link of a Markdown page that leads to no
# file or no heading, and where docs/getting-started.md shows another host than examples/host.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --docs
rm -rf build/docs
mkdir -p build
doxygen docs/Doxyfile

without_code() { sed '/^```/,/^```/d' "$1"; }

# What a link can name behind its "#": the headings, as they are written in links.
anchors() { without_code "$1" | sed -n 's/^##* //p' | tr '[:upper:] ' '[:lower:]-' | tr -cd '[:alnum:]_\n-'; }

links=0 failures=0
while IFS= read -r -d '' page; do
  for link in $(without_code "$page" | grep -oP '\]\((?!https?://)\K[^)]+'); do
    links=$((links + 1))
    target=${link%%#*}
    file=$(dirname "$page")/$target
    [ -n "$target" ] || file=$page
    [ -e "$file" ] && { [ "$target" = "$link" ] || anchors "$file" | grep -qxF -e "${link#*#}"; } && continue
    echo "$page: the link to $link leads nowhere" >&2
    failures=$((failures + 1))
  done
done < <(git ls-files -z --cached --others --exclude-standard '*.md')
for file in $(git ls-files --cached --others --exclude-standard examples/host); do
  [[ $(<docs/getting-started.md) = *"$(<"$file")"* ]] && continue
  echo "docs/getting-started.md: does not show $file as it is" >&2
  failures=$((failures + 1))
done
[ "$failures" -eq 0 ]
echo "build/docs/html/annotated.html; $links links checked"
