#!/usr/bin/env bash
# Builds the fuzzers and runs each for a bounded time: fuzz/run.sh [seconds [name...]], 20 seconds
# and all of them when nothing is said. Inputs that break something are left in findings/ of the
# build folder, and the code is then not 0. $VERANDIS_BUILD names another build folder.
source "$(dirname "${BASH_SOURCE[0]}")/../tools/common.sh"

seconds="${1:-20}"
shift || true
build="${VERANDIS_BUILD:-build/fuzz}"

need_packages clang libclang-rt-14-dev cmake ninja-build
say "Building the fuzzers in $build"
cmake --preset fuzz -B "$build" >/dev/null
cmake --build "$build" --target fuzzers --parallel 2

# Scratch files live in memory where the machine has such a place.
place="${TMPDIR:-/tmp}"
[ -d /dev/shm ] && place=/dev/shm
scratch="$(mktemp -d -p "$place" verandis.XXXXXX)"
trap 'rm -rf "$scratch"' EXIT

# Bytes of the longest input: whole files are longer than a line or a number.
longest() {
    case "$1" in
        numbers | encoding) echo 256 ;;
        epw | libraries) echo 8192 ;;
        *) echo 4096 ;;
    esac
}

names=("$@")
if [ ${#names[@]} -eq 0 ]; then
    for source in fuzz/*_fuzzer.cpp; do
        names+=("$(basename "$source" _fuzzer.cpp)")
    done
fi

broken=()
for name in "${names[@]}"; do
    say "$name, $seconds seconds"
    mkdir -p "$build/findings/$name" "$build/corpus/$name"
    log="$build/findings/$name.log"
    TMPDIR="$scratch" "$build/fuzz_$name" -max_total_time="$seconds" -max_len="$(longest "$name")" \
        -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$build/findings/$name/" \
        "$build/corpus/$name" "fuzz/corpus/$name" >"$log" 2>&1 || broken+=("$name")
    grep -E '^stat::(number_of_executed_units|average_exec_per_sec)' "$log" || tail -n 30 "$log"
done

if [ ${#broken[@]} -gt 0 ]; then
    say "Findings in: ${broken[*]}; their inputs are in $build/findings"
    exit 1
fi
say "No findings"
