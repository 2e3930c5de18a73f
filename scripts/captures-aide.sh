#!/usr/bin/env bash
# Takes the pictures of the help pages anew, in French and English: data/aide/images and data/aide/en/images.
# They are to be noted by empreintes.sh afterwards, as all that is shipped.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
. scripts/captures.sh

preparer_captures

# illustrer NOM FORME [options]: one picture for the pages of both languages, small enough to be shipped.
illustrer() {
    local nom=$1 forme=$2 langue dossier
    shift 2
    for langue in Français English; do
        dossier=data/aide/images
        [ "$langue" = English ] && dossier=data/aide/en/images
        mkdir -p "$dossier"
        photographier "$travail/image.png" "$forme" "$langue.lng" 1 1 "$@"
        convert "$travail/image.png" -strip -resize '900x>' -colors 128 "$dossier/$nom.png"
    done
    echo "$nom"
}

illustrer frmmain Frmmain --entree "N 60"
illustrer fiche-album Frmmain --entree "N 12"
for forme in Splash Manuelle Facile Recherche Pret Acquisition Stats Impression Polices Textures Restauration \
    Import; do
    illustrer "${forme,,}" "$forme"
done
TRI=1 illustrer fiche-serie Frmmain --entree "N 3"
