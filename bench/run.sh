#!/usr/bin/env bash
# Builds the benchmarks (release) and runs them; further arguments go to the program. Ends with the
# ratios and a code other than 0 when a limit is exceeded. $VERANDIS_BUILD names another build
# folder. The data root that is measured stands in $TMPDIR, else in memory: a disk that has just
# deleted many files can take ten times as long to copy, and every rebuild would look quick beside.
source "$(dirname "${BASH_SOURCE[0]}")/../tools/common.sh"

build="${VERANDIS_BUILD:-build/bench}"

need_packages g++ cmake ninja-build libbenchmark-dev "${window_packages[@]}"
say "Building the benchmarks in $build"
cmake -G Ninja -B "$build" -DCMAKE_BUILD_TYPE=Release -DVERANDIS_BENCH=ON -DBUILD_TESTING=OFF \
    >/dev/null
cmake --build "$build" --target verandis_bench --parallel 2

[ -n "${TMPDIR:-}" ] || [ ! -d /dev/shm ] || export TMPDIR=/dev/shm
say "Measuring in ${TMPDIR:-/tmp}"
"$build/verandis_bench" "$@"
