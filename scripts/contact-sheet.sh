#!/usr/bin/env bash
# Takes a picture of every form, light and dark, at 100 and 200 percent, in French and German, and lays them out on
# sheets under build/captures/planches, one for each form. A form's name as argument takes only that one.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/captures.sh

preparer_captures
planches=build/captures/planches
mkdir -p "$planches"
for forme in ${1:-$FORMES}; do
    images=()
    for langue in Français Deutsch; do
        for theme in 1 2; do
            for echelle in 1 2; do
                image="$travail/$forme-$langue-$theme-$echelle.png"
                photographier "$image" "$forme" "$langue.lng" "$theme" "$echelle" --entree "N 60"
                images+=("$image")
            done
        done
    done
    # In pairs: at 100 percent and, brought to the same size, at 200.
    montage "${images[@]}" -tile 2x -geometry 1280x+8+8 -background '#777' "$planches/$forme.png"
    echo "$planches/$forme.png"
done
