#!/usr/bin/env bash
# Sets everything up, builds, and runs the host on a fresh embedded store in
# ./quorvel-home (kept between runs; delete it for a fresh store). With no
# display it runs the demonstration offscreen instead (--demo), which says
# where its pictures went.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup-deps.sh
scripts/build.sh release
home=${QUORVEL_HOME:-$PWD/quorvel-home}
demo=()
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || demo=(--demo)
exec build/release/host/quorvel --home "$home" "${demo[@]}" "$@"
