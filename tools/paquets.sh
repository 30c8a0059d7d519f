# The Debian packages of the project, and their installation; sourced by ./run and ./test.

# libwmf names expat and jpeg as libraries to link, without depending on their development packages.
PAQUETS_CONSTRUCTION=(g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-base-dev-tools qt6-svg-dev
    libsqlcipher-dev libssl-dev mdbtools-dev libsane-dev libwmf-dev libexpat1-dev libjpeg62-turbo-dev qt6-webengine-dev
    qt6-translations-l10n)
PAQUETS_EXECUTION=(qt6-wayland libsane1 fonts-dejavu-core fonts-liberation fonts-comic-neue fonts-urw-base35)
PAQUETS_ECRAN_VIRTUEL=(xvfb xauth x11-utils imagemagick)
PAQUETS_TESTS=(sqlcipher poppler-utils)

# installer_paquets NAME...: installs those that are missing, through sudo when not root.
installer_paquets() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "installing: ${missing[*]}"
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# isoler_le_navigateur: the browser of the import locks its processes in, which it cannot do for root and where the kernel
# gives a user no name spaces of his own; there the lock is switched off.
isoler_le_navigateur() {
    if [ "$(id -u)" -eq 0 ] || ! unshare --user true 2>/dev/null; then
        echo "QTWEBENGINE_DISABLE_SANDBOX=1: the browser of the import cannot lock its processes in for this user"
        export QTWEBENGINE_DISABLE_SANDBOX=1
    fi
}
