#!/usr/bin/env bash
# A keyboard-only walk through the real program under a real X server:
# Xvfb, the openbox window manager, and xdotool for keys (never the mouse).
# On a fresh folder it leaves the start-up tour, opens New Task and types
# its description where the focus starts, opens its help with F1, cancels
# it (nothing stored), opens the help index with F1 and quits with Ctrl+Q. Each step is
# checked on the store (sqlite3 on the file) or on the active window's title,
# and a screenshot of the screen is saved for each.
# Usage: scripts/keyboard-walk.sh [BUILD_DIR] [SHOTS_DIR]
# Exit 77 (skipped) when one of the tools is missing: scripts/setup-deps.sh
# installs them.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
bin=$build/host/quorvel
for tool in Xvfb xdotool openbox sqlite3 import; do
  command -v "$tool" >/dev/null || { echo "keyboard-walk: $tool is missing; skipped"; exit 77; }
done
[ -x "$bin" ] || { echo "keyboard-walk: $bin is not built"; exit 1; }

work=$(mktemp -d /tmp/quorvel-walk-XXXXXX)
shots=${2:-$work/shots}
mkdir -p "$shots"
home=$work/home
store=$home/QuorvelData.mdb
pids=()
cleanup() {
  for p in "${pids[@]}"; do kill "$p" 2>/dev/null || true; done
  case "$shots" in "$work"/*) ;; *) rm -rf "$work" ;; esac
}
trap cleanup EXIT

# A free display number.
n=90
while [ -e /tmp/.X$n-lock ] || [ -e /tmp/.X11-unix/X$n ]; do n=$((n + 1)); done
export DISPLAY=:$n
Xvfb "$DISPLAY" -screen 0 1280x960x24 -nolisten tcp >"$work/xvfb.log" 2>&1 & pids+=($!)
for _ in $(seq 50); do xdotool getmouselocation >/dev/null 2>&1 && break; sleep 0.1; done
openbox >"$work/openbox.log" 2>&1 & pids+=($!)
unset WAYLAND_DISPLAY QT_QPA_PLATFORM
export QT_QPA_PLATFORM=xcb

step=0
fail() { echo "keyboard-walk: FAILED at step $step: $*"; import -window root "$shots/failed.png" 2>/dev/null || true; exit 1; }
title() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
# Waits until the active window's title holds the text.
wait_title() {
  for _ in $(seq 200); do case "$(title)" in *"$1"*) return 0 ;; esac; sleep 0.1; done
  fail "the active window is \"$(title)\", not \"$1\""
}
shot() { step=$((step + 1)); import -window root "$shots/$(printf %02d "$step")-$1.png"; echo "step $step: $1 ok"; }
keys() { for k in "$@"; do xdotool key --delay 60 "$k"; sleep 0.15; done; }
typed() { xdotool type --delay 30 "$1"; sleep 0.2; }
sql() { sqlite3 "$store" "$1"; }
# Waits until a query on the store answers the value.
wait_sql() {
  for _ in $(seq 100); do [ "$(sql "$1" 2>/dev/null)" = "$2" ] && return 0; sleep 0.1; done
  fail "\"$1\" answers \"$(sql "$1" 2>/dev/null)\", not \"$2\""
}

"$bin" --home "$home" --install-store >/dev/null
"$bin" --home "$home" >"$work/quorvel.log" 2>&1 & app=$!; pids+=($app)
wait_title "Getting Started Tour"; keys Escape; wait_title "Task Manager"
keys ctrl+n; wait_title "New Task"; sleep 1
typed "Walk the dog"
keys Tab
for i in 1 2 3 4 5 6 7 8 9; do keys Tab; shot tab$i; done
