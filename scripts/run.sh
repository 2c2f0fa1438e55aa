#!/usr/bin/env bash
# Sets everything up, builds, and runs the host on a fresh embedded store in
# ./quorvel-home (kept between runs; delete it for a fresh store).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup-deps.sh
scripts/build.sh release
home=${QUORVEL_HOME:-$PWD/quorvel-home}
exec build/release/host/quorvel --home "$home" "$@"
