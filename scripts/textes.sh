#!/usr/bin/env bash
# Brings the translation sources of data/tr up to date with the texts in the code. What is new in them waits for a
# translation; what is gone is dropped. A new language begins as an empty file.
set -euo pipefail
cd "$(dirname "$0")/.."
for catalogue in data/tr/bulleo_*.ts; do
    langue=${catalogue#data/tr/bulleo_}
    langue=${langue%.ts}
    /usr/lib/qt6/bin/lupdate -silent src -ts "$catalogue" -source-language fr_FR \
        -target-language "$langue" -no-obsolete -locations none
done
