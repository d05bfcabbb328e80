# Shared by the commands at the top: installs what is missing, and builds a preset.
set -euo pipefail

project="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$project"

# What the desktop program is built with and, without a screen, drawn with.
window_packages=(qt6-base-dev qt6-charts-dev libqt6opengl6-dev libgl-dev qt6-translations-l10n
    fonts-dejavu-core)

say() { printf '\n== %s\n' "$*"; }

# Runs a command as root, through sudo when we are not.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        echo "This needs root: $*" >&2
        exit 1
    fi
}

# Installs the Debian packages of the arguments that are not there yet.
need_packages() {
    local missing=()
    for package in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# Configures and builds a preset; further arguments go to the configuration.
build_preset() {
    local preset="$1"
    shift
    say "Building ($preset)"
    local log
    log="$(mktemp)"
    cmake --preset "$preset" "$@" >"$log" 2>&1 || { cat "$log"; rm -f "$log"; exit 1; }
    rm -f "$log"
    cmake --build --preset "$preset"
}
