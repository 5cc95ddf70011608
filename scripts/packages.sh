# Sourced by ./run and ./test: installs the Debian packages that are missing, quietly, and nothing when all are
# there. Needs root or sudo only if something is missing.

BUILD_PACKAGES="g++ cmake ninja-build ccache libfmt-dev libcli11-dev libfreeimage-dev libeigen3-dev qt6-base-dev qt6-svg-dev libqt6svg6 libgl1-mesa-dev
    qt6-qpa-plugins fonts-liberation cmark-gfm"
TEST_PACKAGES="libgtest-dev libgmock-dev libbenchmark-dev locales xvfb xauth openbox xdotool dbus dbus-daemon
    at-spi2-core python3 python3-pyatspi gir1.2-atspi-2.0 imagemagick desktop-file-utils poppler-utils appstream lintian man-db"

say() { printf '== %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_missing PACKAGE...
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${#missing[@]} missing packages: ${missing[*]}"
    local options=(-qq -y --no-install-recommends -o DPkg::Lock::Timeout=300) log
    log=$(mktemp)
    if ! { as_root apt-get -qq -o DPkg::Lock::Timeout=300 update &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install "${options[@]}" "${missing[@]}"; } >"$log" 2>&1; then
        cat "$log" >&2
        echo "The packages could not be installed; see the lines above." >&2
        return 1
    fi
    rm -f "$log"
}
