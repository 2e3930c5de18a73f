#!/usr/bin/env bash
# Installs what is missing, builds Bulleo and opens it on the sample collection: ./run.sh [options of bulleo].
# ./run.sh --dossier DIR opens a collection of one's own. Without a display it takes pictures instead.
set -euo pipefail
# Paths on the command line are meant from where the user stands.
mots=()
precedent=""
for mot in "$@"; do
    case "$precedent" in
    --dossier | --capture) mot=$(realpath -m -- "$mot") ;;
    esac
    mots+=("$mot")
    precedent=$mot
done
set -- ${mots[@]+"${mots[@]}"}
cd "$(dirname "$0")"
. scripts/paquets.sh

# shellcheck disable=SC2086
installer $PAQUETS_CONSTRUIRE
construire release

bulleo=build/release/bulleo
dossier=(--dossier build/release/exemple)
for mot in "$@"; do
    case "$mot" in
    --dossier | --dossier=* | --help | -h | --version | -v) dossier=() ;;
    esac
done

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$bulleo" "${dossier[@]}" "$@"
fi
case " $* " in
*" --help "* | *" -h "* | *" --version "* | *" -v "*) exec "$bulleo" "$@" ;;
esac
capture=""
case " $* " in
*" --capture "*) capture=demandee ;;
esac

echo "Pas d'écran : le programme est montré dans un écran virtuel, et ses images enregistrées."
# shellcheck disable=SC2086
installer $PAQUETS_MONTRER
images=build/captures
mkdir -p "$images"
# Settings of their own, so that the pictures do not depend on the user's.
reglages=$(mktemp -d)
trap 'rm -rf "$reglages"' EXIT
photographier() {
    XDG_CONFIG_HOME="$reglages" XDG_RUNTIME_DIR="$reglages" \
        xvfb-run -a -s "-screen 0 1280x800x24" "$bulleo" "${dossier[@]}" "$@"
}
if [ -n "$capture" ]; then
    photographier "$@"
    exit
fi
photographier "$@" --capture "$images/fenetre.png"
photographier "$@" --capture "$images/fiche.png" --entree "N 60"
echo "Images enregistrées : $images/fenetre.png (la fenêtre) et $images/fiche.png (une fiche)"
