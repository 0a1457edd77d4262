#!/usr/bin/env bash
# Builds everything and runs every test. "--sanitize" does the same under AddressSanitizer
# and UndefinedBehaviorSanitizer, in a build directory of its own.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=ci
if [ "${1:-}" = "--sanitize" ]; then
    preset=asan
fi
scripts/install-deps.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
export QT_QPA_PLATFORM=offscreen
ctest --preset "$preset" -j2
