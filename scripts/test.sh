#!/usr/bin/env bash
# Sets everything up, builds and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup-deps.sh
scripts/build.sh release
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build/release --output-on-failure -j2
