#!/usr/bin/env bash
# Configures and builds into build/<name> (default: build/release).
# Usage: scripts/build.sh [name] [extra cmake args...]
set -euo pipefail
cd "$(dirname "$0")/.."
name=${1:-release}; shift || true
cmake -S . -B "build/$name" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
ninja -C "build/$name"
