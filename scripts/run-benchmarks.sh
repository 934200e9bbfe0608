#!/usr/bin/env bash
# Runs every benchmark executable found in a build tree.
set -euo pipefail
build=${1:-build-bench}
status=0
for bench in $(find "$build/bench" -type f -executable -name 'bench_*' | sort); do
    echo "== $(basename "$bench")"
    QT_QPA_PLATFORM=offscreen "$bench" || status=1
done
exit $status
