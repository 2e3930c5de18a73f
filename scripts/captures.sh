# Pictures of the program's forms, taken by the program itself in a virtual screen. Sourced by contact-sheet.sh and
# captures-aide.sh, after paquets.sh.

BULLEO=build/release/bulleo
FORMES="Frmmain Splash Manuelle Facile BDNet FrmModif FrmModif2 Recherche Pret Acquisition Stats Impression Apparence Polices
    Textures Restauration Import"

# Builds the program and what pictures need.
preparer_captures() {
    # shellcheck disable=SC2086
    installer $PAQUETS_CONSTRUIRE $PAQUETS_MONTRER $PAQUETS_PHOTOGRAPHIER
    construire release
    travail=$(mktemp -d)
    trap 'rm -rf "$travail"' EXIT
    cp -r build/release/exemple "$travail/exemple"
    # Two backups for the list of backups, and settings that do not depend on the user's.
    mkdir -p "$travail/exemple/sauvegardes" "$travail/reglages/Bulleo"
    cp "$travail/exemple/bd.mdb" "$travail/exemple/sauvegardes/bd 2026-11-20 21-14-03.bd"
    cp "$travail/exemple/bd.mdb" "$travail/exemple/sauvegardes/bd 2026-11-21 18-05-12.bd"
}

# photographier FICHIER FORME LANGUE THEME ECHELLE [options]; theme 1 is light, 2 dark. TRI is the list shown.
photographier() {
    local fichier=$1 forme=$2 langue=$3 theme=$4 echelle=$5
    shift 5
    printf '[Settings]\nFirstTime=1\nTris=%s\nLangue=%s\n[Color]\nTheme=%s\n' "${TRI:-0}" "$langue" "$theme" \
        >"$travail/reglages/Bulleo/Bulleo V1.2.conf"
    cp "$travail/exemple/langues/$langue" "$travail/exemple/defaut.lng"
    XDG_CONFIG_HOME="$travail/reglages" XDG_RUNTIME_DIR="$travail" QT_SCALE_FACTOR="$echelle" \
        xvfb-run -a -s "-screen 0 $((1280 * echelle))x$((800 * echelle))x24" \
        "$BULLEO" --dossier "$travail/exemple" --capture "$fichier" --forme "$forme" "$@"
}
