#!/usr/bin/env bash
# Brings the translation sources of data/tr up to date with the texts in the code. What is new in them waits for a
# translation; what is gone is dropped.
set -euo pipefail
cd "$(dirname "$0")/.."
for langue in fr en de es it nl; do
    /usr/lib/qt6/bin/lupdate -silent src -ts "data/tr/bulleo_$langue.ts" -source-language fr_FR \
        -target-language "$langue" -no-obsolete -locations none
done
