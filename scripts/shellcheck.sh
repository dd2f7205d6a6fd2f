#!/usr/bin/env bash
# Lints all shell scripts: shellcheck.sh
set -euo pipefail
. "$(dirname "$0")/lib/common.sh"
cd "$(dirname "$0")/.."
./scripts/install-dependencies.sh --lint
git ls-files -z --cached --others --exclude-standard '*.sh' .ci/run packaging/debian/{pre,post}{inst,rm} |
  xargs -0 shellcheck --external-sources --source-path=SCRIPTDIR
