#!/usr/bin/env bash
# Tries the page analysis with what libFuzzer makes of the pages in tests/data/pages: scripts/fuzz.sh [SECONDS].
# Needs clang (package clang). New inputs go to build/fuzz/corpus, a failing one to build/fuzz.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
# shellcheck disable=SC2086
installer $PAQUETS_CONSTRUIRE $PAQUETS_FUZZ
[ -f build/fuzz/build.ninja ] || cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target bulleo-fuzz-page
mkdir -p build/fuzz/corpus
exec build/fuzz/bulleo-fuzz-page -max_total_time="${1:-600}" -timeout=5 -max_len=16384 -print_final_stats=1 \
    -dict=tests/fuzz/page.dict -artifact_prefix=build/fuzz/ build/fuzz/corpus tests/data/pages
