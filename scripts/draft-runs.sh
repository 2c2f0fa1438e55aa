#!/usr/bin/env bash
# Drafts under failure, N rounds of each kind (default 10): the Existing
# Task dialog gets a typed description and notes, then
#   kill   the driver is killed with SIGKILL while the dialog is open;
#   fault  the save meets a store that fails (a table gone, a trigger that
#          refuses the row) or a Time Spent the dialog can't read ("1D 1:00"):
#          the error path closes the dialog;
#   disk   (as root) the store's disk is full at the save (a small tmpfs);
#   server the store is a throw-away PostgreSQL server, stopped while the
#          dialog is open (scripts/pg-server.sh).
# Each round then opens the task again and counts it when the typing is
# offered, Yes fills it in, the save stores it and no draft is left.
# Usage: scripts/draft-runs.sh [N] [KIND...]   (KIND: kill fault disk server)
set -uo pipefail
cd "$(dirname "$0")/.."
bin=${QV_SCRIPT:-build/release/host/quorvel-script}
n=${1:-10}; shift || true
kinds=${*:-kill fault disk}
work=$(mktemp -d /tmp/quorvel-draft-runs-XXXXXX)
chmod 755 "$work"  # the server runs as another user
export XDG_STATE_HOME=$work/state
task=T0000000-0000-0000-0000-000000000001
trap 'mountpoint -q "$work/disk" && umount "$work/disk"; [ -d "$work/pg" ] && scripts/pg-server.sh stop "$work/pg"; rm -rf "$work"' EXIT

seed() {  # folder: a store with one task
  printf 'home "%s"\nsql "DELETE FROM TASKS"\nsql "INSERT INTO TASKS (tskGUIDID, tskDesc, tskNotes, tskProject, tskProjectKey, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, tskTimeSpent, tskTimeScheduled, tskCurrent) VALUES (%s, %s, %s, %s, %s, 1, 2, 1, 90, 0, 0, 0)"\n' \
    "$1" "'$task'" "'Stored text'" "'Stored notes'" "''" "'NOPROJECT'" | "$bin" - >/dev/null
}
typing() {  # folder round: open the task and type
  printf 'home "%s"\nsetup 1 task=%s\ntype spellTask "Typed in round %s"\ntype SpellNotes "Notes of round %s\\nsecond line"\nadvance 1000\n' \
    "$1" "$task" "$2" "$2"
}
offered_back() {  # folder round: 0 when the typing comes back and is saved
  printf '%s\n' "home \"$1\"" "answer yes" "setup 1 task=$task" \
    "expect editor spellTask \"Typed in round $2\"" "expect editor SpellNotes \"Notes of round $2\\nsecond line\"" \
    "click smtActions.UPDATE" "expect event TaskUpdated" \
    "expect row \"SELECT tskDesc FROM TASKS\" \"Typed in round $2\"" \
    "expect row \"SELECT tskNotes FROM TASKS\" \"Notes of round $2\\nsecond line\"" \
    "expect draft 1 $task none" | "$bin" - >"$work/check.log" 2>&1
}

run_kill() {  # folder round
  { typing "$1" "$2"; echo "sleep 60000"; } >"$work/kill.qvs"
  "$bin" "$work/kill.qvs" >/dev/null 2>&1 &
  local pid=$!
  for _ in $(seq 200); do ls "$XDG_STATE_HOME"/quorvel/drafts/1-*.draft >/dev/null 2>&1 && break; sleep 0.05; done
  kill -9 "$pid"; wait "$pid" 2>/dev/null
}
run_fault() {  # folder round: three faults in turn
  local breaks mends
  case $(( $2 % 3 )) in
    0) breaks='sql "ALTER TABLE TASKS RENAME TO TASKS_AWAY"'; mends='sql "ALTER TABLE TASKS_AWAY RENAME TO TASKS"';;
    1) breaks='sql "CREATE TRIGGER refuse BEFORE UPDATE ON TASKS BEGIN SELECT RAISE(ABORT, '"'refused'"'); END"'
       mends='sql "DROP TRIGGER refuse"';;
    2) breaks='answer ok
type smtTimes.TIMESPENT "1D 1:00"'; mends='';;
  esac
  { typing "$1" "$2"; echo "$breaks"; echo "click smtActions.UPDATE"; echo "expect event GotErrExitNow"; echo "$mends"; } \
    | "$bin" - >"$work/fault.log" 2>&1
  grep -q "^fault " "$work/fault.log" || echo "  round $2: no fault taken" >&2
  # The unreadable time fails again when it is replayed: that open restores
  # the texts, drops the time from the draft and ends on the fault.
  if [ $(( $2 % 3 )) -eq 2 ]; then
    printf '%s\n' "home \"$1\"" "answer yes" "answer ok" "setup 1 task=$task" \
      "expect message \"This task has changes from 1/15/2024 09:00 that were not saved. Restore them?\"" \
      "expect event GotErrExitNow" | "$bin" - >"$work/replay.log" 2>&1 || cat "$work/replay.log" >&2
  fi
}
run_disk() {  # folder round: the store's disk fills while the dialog is open
  { typing "$1" "$2"; echo "sleep 2000"; echo "click smtActions.UPDATE"; echo "expect event GotErrExitNow"; } \
    >"$work/disk.qvs"
  "$bin" "$work/disk.qvs" >"$work/disk.log" 2>&1 &
  local pid=$!
  for _ in $(seq 200); do ls "$XDG_STATE_HOME"/quorvel/drafts/1-*.draft >/dev/null 2>&1 && break; sleep 0.05; done
  dd if=/dev/zero of="$work/disk/filler" bs=64k >/dev/null 2>&1
  wait "$pid"
  grep -q "^fault " "$work/disk.log" || echo "  round $2: the full disk took no error path" >&2
  rm -f "$work/disk/filler"
}

pg_bin=$(ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -1)
as_pg() { if [ "$(id -u)" -eq 0 ]; then runuser -u postgres -- "$@"; else "$@"; fi; }
server_up() {
  as_pg "$pg_bin/pg_ctl" -D "$work/pg/data" -l "$work/pg/server.log" -w -t 30 \
    -o "-k $work/pg -c listen_addresses= -c fsync=off" start >/dev/null
}
run_server() {  # folder round: the server stops while the dialog is open
  { typing "$1" "$2"; echo "sleep 2000"; echo "click smtActions.UPDATE"; echo "expect event GotErrExitNow"; } \
    >"$work/server.qvs"
  "$bin" "$work/server.qvs" >"$work/server.log" 2>&1 &
  local pid=$!
  for _ in $(seq 200); do ls "$XDG_STATE_HOME"/quorvel/drafts/1-*.draft >/dev/null 2>&1 && break; sleep 0.05; done
  # A restart: every connection is cut; what was committed stays (the
  # throw-away server commits without waiting for the disk).
  as_pg "$pg_bin/pg_ctl" -D "$work/pg/data" -m fast -w -t 30 stop >/dev/null 2>&1
  wait "$pid"
  grep -q "^fault " "$work/server.log" || echo "  round $2: the stopped server took no error path" >&2
  server_up
}

for kind in $kinds; do
  ok=0
  for round in $(seq 1 "$n"); do
    rm -rf "$XDG_STATE_HOME"
    folder=$work/$kind-$round
    if [ "$kind" = disk ]; then
      if [ "$(id -u)" -ne 0 ]; then echo "disk: skipped (a tmpfs needs root)"; continue 2; fi
      mkdir -p "$work/disk"; mountpoint -q "$work/disk" || mount -t tmpfs -o size=8m tmpfs "$work/disk"
      folder=$work/disk/$round
    elif [ "$kind" = server ]; then
      if [ ! -d "$work/pg" ]; then
        uri=$(scripts/pg-server.sh start "$work/pg") || { echo "server: skipped (no PostgreSQL)"; continue 2; }
        QT_QPA_PLATFORM=offscreen "${QV_HOST:-build/release/host/quorvel}" --home "$work/server-home" \
          --install-store --store "$uri" >/dev/null
      fi
      folder=$work/server-home
    fi
    seed "$folder"
    case $kind in
      kill) run_kill "$folder" "$round";;
      fault) run_fault "$folder" "$round";;
      disk) run_disk "$folder" "$round";;
      server) run_server "$folder" "$round";;
    esac
    if offered_back "$folder" "$round"; then ok=$((ok + 1)); else echo "  $kind round $round:" >&2; cat "$work/check.log" >&2; fi
  done
  echo "$kind: typed description and notes offered back and saved in $ok/$n runs"
done
