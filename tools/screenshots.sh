#!/usr/bin/env bash
# Builds the program that photographs the windows and writes the pictures of the documentation to
# docs/pictures/ and the figures of the help pages; with arguments: FOLDER [language 1|2] [light|dark] [font percent].
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

need_packages g++ cmake ninja-build "${window_packages[@]}"
build="${VERANDIS_BUILD:-build/screenshots}"
say "Building in $build"
cmake -G Ninja -B "$build" -DCMAKE_BUILD_TYPE=Release -DVERANDIS_SCREENSHOTS=ON \
    -DBUILD_TESTING=OFF >/dev/null
cmake --build "$build" --target screenshots help_figures verandis-cli delivered

folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
export VERANDIS_CONFIG_DIR="$folder/config" QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$folder"
chmod 700 "$folder"
"$build/verandis-cli" init "$folder/root" >/dev/null
[ "${2:-2}" = 2 ] || sed -i "s/^Language=.*/Language=$2/" "$folder/config/Verandis.INI"

if [ $# -gt 0 ]; then
    "$build/screenshots" "$@"
    exit 0
fi
"$build/screenshots" "$folder/pictures"
mkdir -p docs/pictures
cp "$folder/pictures/tab1.png" docs/pictures/main-window.png
cp "$folder/pictures/start.png" docs/pictures/start.png
"$build/help_figures" data/MWTHARM/help
for language in 1:sv 2:en; do
    sed -i "s/^Language=.*/Language=${language%:*}/" "$folder/config/Verandis.INI"
    "$build/screenshots" "$folder/$language" "${language%:*}" light 100 small
    for picture in start tab1 guide building-data site glazing constructions conditions; do
        cp "$folder/$language/$picture.png" "data/MWTHARM/help/${language#*:}/window_$picture.png"
    done
done
say "docs/pictures holds main-window.png and start.png"
