#!/usr/bin/env bash
# Builds the libFuzzer targets (preset "fuzz") and runs each for the given number of seconds
# (default 30), starting from the seeds in fuzz/corpus/<target>. Inputs a run discovers go to
# build/fuzz/corpus/<target>, crashes to build/fuzz/findings/<target>/; the script fails when a
# target finds anything. FUZZ_JOBS targets run at a time (default: one per processor).
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-30}
jobs=${FUZZ_JOBS:-$(nproc)}

scripts/install-deps.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

build=build/fuzz
targets=$(cd fuzz && ls fuzz_*.cpp | sed 's/\.cpp$//')
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

run_target() {
    local target=$1
    mkdir -p "$build/corpus/$target" "$build/findings/$target" "$build/logs"
    # The first corpus folder receives what the run discovers; the committed seeds stay as they are.
    if "$build/fuzz/$target" "$build/corpus/$target" "fuzz/corpus/$target" \
        -max_total_time="$seconds" -timeout=25 -rss_limit_mb=3072 -print_final_stats=1 \
        -artifact_prefix="$build/findings/$target/" >"$build/logs/$target.log" 2>&1; then
        echo "$target: $(grep -o 'Done [0-9]* runs in [0-9]* second(s)' "$build/logs/$target.log" | tail -1)"
    else
        echo "$target: FAILED, see $build/logs/$target.log"
        tail -40 "$build/logs/$target.log"
        return 1
    fi
}
export -f run_target
export build seconds

status=0
echo "$targets" | xargs -P "$jobs" -I{} bash -c 'run_target {}' || status=1
exit $status
