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
for tool in Xvfb xdotool xprop openbox sqlite3 import; do
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
# Windows mapped before the window manager runs are never made active.
for _ in $(seq 100); do xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break; sleep 0.1; done
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

wait_title "Getting Started Tour"; shot tour-at-start
keys Escape; wait_title "Task Manager"; shot task-manager

# New Task: the description takes the typing; a new project and a new
# keyword through their own windows; Alt+D adds the task.
keys ctrl+n; wait_title "New Task"; sleep 1
typed "Walk the dog"; shot new-task-typed
keys F1; wait_title "Creating New Tasks"; shot new-task-help
keys Escape; wait_title "New Task"
keys shift+Tab space; wait_title "Add Project"; shot add-project    # New Project, just before the description
typed "Garden"; keys Tab; typed "Beds and paths"; keys Return
wait_sql "SELECT prjProject FROM PROJECTS" "Garden"; keys Return; sleep 0.3
keys Escape; wait_title "New Task"; shot project-chosen
for _ in $(seq 13); do keys Tab; done                             # from Status round to Add Keyword
keys space; wait_title "Add Keyword"; shot add-keyword
keys shift+Tab; typed "Outside"; keys Tab; typed "Walks"; keys Return
wait_sql "SELECT keySubject || '/' || keyKeyword FROM KEYWORDS" "Outside/Walks"; keys Return; sleep 0.3
keys Escape; wait_title "New Task"
for _ in $(seq 13); do keys Tab; done                             # from Status to the new keyword's box
keys space; shot keyword-ticked
keys alt+d
wait_sql "SELECT tskDesc || '/' || tskProject FROM TASKS" "Walk the dog/Garden"
wait_sql "SELECT ktKeyword FROM TaskKeywords" "Walks"; shot task-added   # keys wait until the dialog stands ready for the next task
keys Escape; wait_title "Task Manager"

# The task in the list: open it, change the description, Update Task.
keys alt+p Tab Tab Down; shot task-chosen
keys ctrl+o; wait_title "Edit Task"; sleep 0.5
keys ctrl+End; typed " twice"; shot existing-task-typed
keys alt+u; wait_sql "SELECT tskDesc FROM TASKS" "Walk the dog twice"; wait_title "Task Manager"; shot task-updated

# An appointment for it: schedule, work it, update.
keys ctrl+shift+a; wait_sql "SELECT count(*) FROM TASKAPPTS" 1; shot appointment-scheduled
keys ctrl+shift+w; wait_title "Task Appointment"; sleep 0.5; shot appointment-open
keys F1; wait_title "Working with Task Appointments"; shot appointment-help
keys Escape; wait_title "Task Appointment"
for _ in $(seq 12); do keys Tab; done                             # round to "Task is Done"
keys space; shot appointment-done
keys alt+u; wait_title "Task Manager"
wait_sql "SELECT count(*) FROM TASKAPPTS WHERE taWasWorked<>0" 1; shot appointment-worked

# Help, Page Setup, quit.
keys F1; wait_title "Help Index"; shot help-index
keys Escape; wait_title "Task Manager"
keys ctrl+n; wait_title "New Task"; sleep 1
keys alt+g; sleep 0.5; keys s; wait_title "Page Setup"; shot page-setup   # Printing > Page Setup...
keys F1; wait_title "Print and Print Preview"; shot page-setup-help
keys Escape; wait_title "Page Setup"
keys Escape; wait_title "New Task"
keys Escape; sleep 0.5; shot cancel-question; keys Return; wait_title "Task Manager"   # "Cancel creating the current task?" Yes
keys ctrl+q
for _ in $(seq 50); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
kill -0 "$app" 2>/dev/null && fail "quorvel still runs after Ctrl+Q"
step=$((step + 1)); echo "step $step: quit ok"
echo "keyboard-walk: all $step steps passed, zero mouse events; screenshots in $shots"
