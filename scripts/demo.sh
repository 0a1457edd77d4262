#!/usr/bin/env bash
# Builds everything and runs the demo application. Arguments go to the demo, for example
# "--screenshot demo.png" on a machine without a display.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake --preset dev >/dev/null
cmake --build --preset dev
exec build/dev/bin/QtComponentsDemo "$@"
