#!/usr/bin/env bash
# Notes in data/empreintes.txt what is shipped now: a digest and a name each. What was noted before stays, so that the
# program knows a file that its user left as it once came, and may replace it. With --histoire every version that the
# repository ever held is noted, too.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/paquets.sh
construire debug --target bulleo-catalogue >&2
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
sources=(data/langues data/aide data/textures data/catalogue.csv)

# The name in the application folder of a file of data/; nothing for one that is not shipped.
nom_livre() {
    case "$1" in
    *.sh) ;;
    data/langues/*) echo "langues/${1#data/langues/}" ;;
    data/aide/*) echo "Help/${1#data/aide/}" ;;
    data/textures/*) echo "Fond Ecran/${1#data/textures/}" ;;
    data/catalogue.csv) echo "BDbase.bd" ;;
    esac
}

# noter CHEMIN: the line of the file of data/ whose bytes come in. A catalogue counts by its content, as it is built.
noter() {
    local nom empreinte
    nom=$(nom_livre "$1")
    [ -n "$nom" ] || return 0
    cat >"$travail/octets"
    if [ "$nom" = BDbase.bd ]; then
        build/debug/bulleo-catalogue --strict "$travail/octets" "$travail/BDbase.bd" >&2
        empreinte=$(build/debug/bulleo-catalogue --empreinte "$travail/BDbase.bd")
    else
        empreinte=$(sha256sum <"$travail/octets")
    fi
    echo "${empreinte%% *}  $nom"
}

maintenant() {
    find "${sources[@]}" -type f -print0 | while IFS= read -r -d '' chemin; do
        noter "$chemin" <"$chemin"
    done
}

histoire() {
    git rev-list --full-history HEAD -- "${sources[@]}" | while read -r version; do
        git ls-tree -r -z "$version" -- "${sources[@]}"
    done | LC_ALL=C sort -zu | while IFS= read -r -d '' entree; do
        objet=${entree%%$'\t'*}
        git cat-file blob "${objet##* }" | noter "${entree#*$'\t'}"
    done
}

liste=data/empreintes.txt
touch "$liste"
{
    cat "$liste"
    maintenant
    if [ "${1:-}" = --histoire ]; then histoire; fi
} >"$travail/liste"
# By name; the order does not depend on who sorts.
LC_ALL=C sort -u -k2 -k1,1 "$travail/liste" >"$travail/triee"
cmp -s "$travail/triee" "$liste" || cp "$travail/triee" "$liste"
wc -l <"$liste"
