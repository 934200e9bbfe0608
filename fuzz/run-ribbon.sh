#!/usr/bin/env bash
# Runs one ribbon fuzz target from a `make fuzz` tree, seeded with valid
# layout and quick access bar streams, with bounded memory and time per input.
#   fuzz/run-ribbon.sh <target> [seconds] [build dir]
#   target: fuzz_ribbon_restore | fuzz_ribbon_restore_device |
#           fuzz_quickbar_restore | fuzz_quickbar_restore_device
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
target=$1
seconds=${2:-300}
build=${3:-build-fuzz}
case $target in
    fuzz_ribbon_restore) seeds=layout ;;
    fuzz_ribbon_restore_device) seeds=layout-raw ;;
    fuzz_quickbar_restore) seeds=quick ;;
    fuzz_quickbar_restore_device) seeds=quick-raw ;;
    *) echo "unknown target $target" >&2; exit 2 ;;
esac
corpus=$build/fuzz/corpus-$target
mkdir -p "$corpus" "$build/fuzz/artifacts-$target/"
ASAN_OPTIONS=detect_leaks=0 "$build/fuzz/ribbon_seeds" "$build/fuzz/seeds-ribbon" >/dev/null
export LSAN_OPTIONS=suppressions=$here/lsan.supp
exec "$build/fuzz/$target" -rss_limit_mb=2048 -malloc_limit_mb=512 -timeout=20 \
    -max_total_time="$seconds" -report_slow_units=2 -print_final_stats=1 \
    -artifact_prefix="$build/fuzz/artifacts-$target/" "$corpus" "$build/fuzz/seeds-ribbon/$seeds"
