#!/usr/bin/env bash
# Checks the spelling of all files, in American English: spelling.sh
# .codespellrc lists the exceptions.
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --lint
git ls-files -z --cached --others --exclude-standard | xargs -0 codespell
