#!/usr/bin/env bash
# Installs what is missing, looks whether the sources are formatted, builds with the sanitizers and runs all tests.
# ./test.sh NAME runs those whose name holds NAME.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/paquets.sh

# shellcheck disable=SC2086
installer $PAQUETS_CONSTRUIRE $PAQUETS_ESSAYER
scripts/format.sh
construire asan
ctest --preset asan -j "$(nproc)" ${1:+-R "$1"}
