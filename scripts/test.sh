#!/usr/bin/env bash
# Builds everything and runs every test. "--sanitize" does the same under AddressSanitizer
# and UndefinedBehaviorSanitizer, in a build directory of its own. "--thread-sanitizer" builds
# only the tests of code that runs on several threads (CTest label "threads") under
# ThreadSanitizer and runs those.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=ci
case "${1:-}" in
    --sanitize) preset=asan ;;
    --thread-sanitizer) preset=tsan ;;
    "") ;;
    *) echo "usage: $0 [--sanitize | --thread-sanitizer]" >&2; exit 2 ;;
esac
scripts/install-deps.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
export QT_QPA_PLATFORM=offscreen
ctest --preset "$preset" -j2
