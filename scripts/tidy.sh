#!/usr/bin/env bash
# Reads the sources with the checks chosen in .clang-tidy: scripts/tidy.sh [FOLDER...], all of them without one. Prints
# what it finds, and fails when it finds something. Some eleven seconds a file.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
# shellcheck disable=SC2086
installer $PAQUETS_CONSTRUIRE $PAQUETS_RELIRE
# What the build generates is read, too.
construire debug >/dev/null
if [ $# -eq 0 ]; then set -- src tools tests bench; fi
connus=$(mktemp)
trap 'rm -f "$connus"' EXIT
grep -oE '"file": "[^"]*"' build/debug/compile_commands.json | cut -d'"' -f4 | sort -u >"$connus"
# Fuzz targets and benchmarks that the debug build does not have are not read.
git ls-files -- "$@" | grep '\.cpp$' | while IFS= read -r fichier; do
    if grep -qxF "$PWD/$fichier" "$connus"; then echo "$fichier"; fi
done | xargs -P "$(nproc)" -n 1 clang-tidy -p build/debug --quiet 2> >(grep -vE 'warnings? (generated|treated)|^Suppressed|^Use -' >&2)
