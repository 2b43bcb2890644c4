# Sourced by run and check: installs what is missing on Debian, names it on another system.
# quiverdeck_setup build|check|bench: the packages to build and start the program, those to test it as well, or
# those to build and measure it.

build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-base-dev-tools qt6-translations-l10n
    qt6-svg-dev libsqlite3-dev libasound2-dev libxcb-randr0-dev fonts-dejavu-core fonts-liberation breeze-icon-theme)
screen_packages=(xvfb openbox xdotool x11-utils x11-xkb-utils imagemagick poppler-utils)
check_packages=(clang-format sqlite3 xserver-xephyr dpkg-dev file desktop-file-utils appstream)
bench_packages=(libbenchmark-dev)

quiverdeck_setup() {
    local wanted=("${build_packages[@]}")
    if [ "$1" = check ]; then
        wanted+=("${screen_packages[@]}" "${check_packages[@]}")
    elif [ "$1" = bench ]; then
        wanted+=("${bench_packages[@]}")
    elif [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
        wanted+=("${screen_packages[@]}")
    fi
    if ! command -v dpkg-query >/dev/null; then
        local missing=()
        for tool in g++ cmake ninja pkg-config; do
            command -v "$tool" >/dev/null || missing+=("$tool")
        done
        for module in Qt6Widgets Qt6PrintSupport Qt6Svg sqlite3 alsa; do
            pkg-config --exists "$module" 2>/dev/null || missing+=("$module (development files)")
        done
        if [ ${#missing[@]} -gt 0 ]; then
            printf 'Quiverdeck needs, and this system lacks:\n' >&2
            printf '  %s\n' "${missing[@]}" >&2
            printf 'On Debian 12 these packages hold everything: %s\n' "${wanted[*]}" >&2
            return 1
        fi
        return 0
    fi
    local missing=()
    for package in "${wanted[@]}"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    printf 'Installing: %s\n' "${missing[*]}"
    local root=()
    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo >/dev/null; then
            printf 'Please install these packages as root first: %s\n' "${missing[*]}" >&2
            return 1
        fi
        root=(sudo)
    fi
    "${root[@]}" apt-get update -qq || true
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
