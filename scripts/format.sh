#!/usr/bin/env bash
# Says which sources are not written as .clang-format wants them, and fails when there are some; with --mettre it writes
# them so.
set -euo pipefail
cd "$(dirname "$0")/.."
ecrire=(--dry-run -Werror)
if [ "${1:-}" = --mettre ]; then ecrire=(-i); fi
git ls-files -z -- '*.cpp' '*.h' | xargs -0 -P "$(nproc)" -n 20 clang-format "${ecrire[@]}"
