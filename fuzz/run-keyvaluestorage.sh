#!/usr/bin/env bash
# Runs fuzz_keyvaluestorage from a `make fuzz` tree: seeds from valid stores of
# every value type, bounded memory, a time per input and a total duration.
#   fuzz/run-keyvaluestorage.sh [seconds] [build dir] [corpus dir] [libFuzzer options...]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
seconds=${1:-600}
build=${2:-build-fuzz}
corpus=${3:-$build/fuzz/corpus-keyvaluestorage}
shift $(( $# < 3 ? $# : 3 ))
mkdir -p "$corpus" "$build/fuzz/seeds-keyvaluestorage" "$build/fuzz/artifacts/"
ASAN_OPTIONS=detect_leaks=0 "$build/fuzz/keyvaluestorage_seeds" "$build/fuzz/seeds-keyvaluestorage" >/dev/null
export LSAN_OPTIONS=suppressions=$here/lsan.supp
exec "$build/fuzz/fuzz_keyvaluestorage" -rss_limit_mb=2048 -malloc_limit_mb=512 -timeout=10 \
    -max_total_time="$seconds" -report_slow_units=1 -print_final_stats=1 \
    -artifact_prefix="$build/fuzz/artifacts/" "$@" "$corpus" "$build/fuzz/seeds-keyvaluestorage"
