# shellcheck shell=bash
# Sourced by the scripts that lint C++ sources.

# Reads the names of sources, each ended by a null character: run_clang_tidy OPTION...
run_clang_tidy() {
  # clang-tidy counts the suppressed warnings of system headers on stderr even with --quiet.
  xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet "$@" 2> >(grep -vE '^[0-9]+ warnings? generated\.$' >&2 || true)
}
