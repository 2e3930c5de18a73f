# Debian packages that the project needs, and their installation. Sourced by run.sh and test.sh.

PAQUETS_CONSTRUIRE="g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-base-dev-tools libqt6svg6 qt6-l10n-tools qt6-translations-l10n
    qt6-charts-dev qt6-webengine-dev libsane-dev libwmf-dev mdbtools-dev libsqlite3-dev libsqlitecpp-dev libicu-dev libcsv-dev fonts-dejavu-core fonts-urw-base35"
PAQUETS_MONTRER="xvfb xauth"
PAQUETS_ESSAYER="sqlite3 util-linux git clang-format"
PAQUETS_RELIRE="clang-tidy"
PAQUETS_FUZZ="clang"
PAQUETS_PHOTOGRAPHIER="imagemagick"
PAQUETS_MESURER="libbenchmark-dev xvfb xauth"

# Installs those of the packages named that are missing; says nothing when there are none.
installer() {
    manquants=""
    for paquet in "$@"; do
        dpkg-query -W -f='${Status}' "$paquet" 2>/dev/null | grep -q "ok installed" || manquants="$manquants $paquet"
    done
    [ -z "$manquants" ] && return 0
    echo "Installation des paquets manquants :$manquants"
    root=""
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Il faut être root, ou avoir sudo." >&2; return 1; }
        root="sudo"
    fi
    $root apt-get update -qq
    # shellcheck disable=SC2086
    $root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $manquants >/dev/null
}

# Configures and builds a preset, or what else the words after it ask of the build; the tools print only what matters.
construire() {
    mkdir -p build
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >"build/$1.log" 2>&1 || {
        cat "build/$1.log" >&2
        return 1
    }
    cmake --build --preset "$@"
}
