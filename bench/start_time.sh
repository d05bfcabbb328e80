#!/usr/bin/env bash
# Takes the time from the start of the process to the shown main window, and that of an empty window
# with as many charts, in turns; prints the medians and their ratio. Fails above the limit.
source "$(dirname "${BASH_SOURCE[0]}")/../tools/common.sh"

limit=1.5
rounds="${1:-21}"
build="${VERANDIS_BUILD:-build/bench}"

need_packages g++ cmake ninja-build libbenchmark-dev "${window_packages[@]}"
say "Building in $build"
cmake -G Ninja -B "$build" -DCMAKE_BUILD_TYPE=Release -DVERANDIS_BENCH=ON -DBUILD_TESTING=OFF \
    >/dev/null
cmake --build "$build" --target start_window verandis-cli delivered --parallel 2

folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
export VERANDIS_CONFIG_DIR="$folder/config" QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="$folder"
"$build/verandis-cli" init "$folder/root" >/dev/null

microseconds() {
    local start end
    start="$(date +%s%N)"
    "$build/start_window" "$1" 2>/dev/null
    end="$(date +%s%N)"
    echo $(((end - start) / 1000))
}

say "Measuring $rounds starts of each"
for _ in 1 2; do microseconds main >/dev/null; microseconds empty >/dev/null; done
for ((round = 0; round < rounds; ++round)); do
    microseconds main >>"$folder/main"
    microseconds empty >>"$folder/empty"
done

median() { sort -n "$1" | awk '{ value[NR] = $1 } END { print value[int((NR + 1) / 2)] }'; }
awk -v main="$(median "$folder/main")" -v empty="$(median "$folder/empty")" -v limit="$limit" 'BEGIN {
    ratio = main / empty
    printf "main window %.1f ms, empty window with charts %.1f ms, ratio %.2f (limit %.1f)\n",
           main / 1000, empty / 1000, ratio, limit
    exit ratio > limit
}'
