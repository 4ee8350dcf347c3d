# Sourced by run, test and .ci/run: installs what is missing, then configures and builds a preset.
# Everything comes from Debian's packages.

set -euo pipefail

kaart_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
kaart_jobs=$(nproc)

build_packages=(g++ cmake make ninja-build ccache qt6-base-dev qt6-base-dev-tools qt6-svg-dev
    qt6-qpa-plugins qt6-translations-l10n libgl1-mesa-dev libhwy-dev libzip-dev libbenchmark-dev
    fonts-liberation poppler-utils dbus-daemon)
tour_packages=(xvfb xauth)
check_packages=(clang-format clang-tidy)

# install_missing <package...>
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing from Debian's packages: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
        command -v sudo >/dev/null || {
            echo "Not root and no sudo here: please install these packages and try again." >&2
            exit 1
        }
    fi
    "${as_root[@]}" apt-get update -q >/dev/null
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

# build_preset <preset> <ninja target...>
build_preset() {
    local preset=$1
    shift
    cd "$kaart_root"
    if [ ! -f "build/$preset/build.ninja" ] && [ ! -f "build/$preset/Makefile" ]; then
        local generator=()
        command -v ninja >/dev/null && generator=(-G Ninja)
        cmake --preset "$preset" "${generator[@]}" >/dev/null
    fi
    cmake --build "build/$preset" -j "$kaart_jobs" --target "$@"
}

# run_tests <preset>
run_tests() {
    ctest --test-dir "$kaart_root/build/$1" -j "$kaart_jobs" --output-on-failure
}
