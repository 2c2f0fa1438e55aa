#!/usr/bin/env bash
# Two users edit one task at once, N rounds: two quorvel-script processes
# open the same task in the Existing Task dialog, one changes the
# description, the other the notes, and both press Update at the same
# moment. A round keeps both edits when the task holds both afterwards.
#   scripts/two-editors.sh [file|server] [ROUNDS] [BUILD]
# Prints "K of N rounds kept both edits"; exits 1 unless K is N.
set -euo pipefail
cd "$(dirname "$0")/.."
store=${1:-file}; rounds=${2:-10}; build=${3:-build/release}
script=$build/host/quorvel-script
[ -x "$script" ] || { echo "two-editors: build first ($script is missing)" >&2; exit 2; }
work=$(mktemp -d /tmp/qv-two-editors.XXXXXX)
chmod 755 "$work"  # the server may run as another user
home=$work/home
cleanup() { [ "$store" = server ] && scripts/pg-server.sh stop "$work/pg" >/dev/null 2>&1; rm -rf "$work"; }
trap cleanup EXIT
case "$store" in
  file) "$script" /dev/stdin >/dev/null <<<"home $home" ;;
  server)
    uri=$(scripts/pg-server.sh start "$work/pg")
    QT_QPA_PLATFORM=offscreen "$build/host/quorvel" --home "$home" --install-store --store "$uri" >/dev/null ;;
  *) echo "two-editors: file or server" >&2; exit 2 ;;
esac

# One editor: opens the task, types, says it is ready, waits for the other,
# and saves.
editor() { # me other key target text
  cat >"$work/$1.qvs" <<QVS
home $home
setup 1 task=$3
type $4 "$5"
signal $work/$1.ready
wait-for $work/$2.ready
click smtActions.UPDATE
expect no-message
expect event TaskUpdated
QVS
}

kept=0
for round in $(seq 1 "$rounds"); do
  key=$(printf 'R0000000-0000-0000-0000-%012d' "$round")
  "$script" /dev/stdin >/dev/null <<QVS
home $home
sql "INSERT INTO TASKS (tskGUIDID, tskDesc, tskNotes, tskProject, tskProjectKey, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, tskTimeSpent, tskTimeScheduled, tskCurrent) VALUES ('$key', 'Round $round', 'Notes', '', 'NOPROJECT', 1, 2, 1, 90, 30, 0, 1)"
QVS
  rm -f "$work"/*.ready
  editor a b "$key" spellTask "Description of A, round $round"
  editor b a "$key" SpellNotes "Notes of B, round $round"
  "$script" "$work/a.qvs" >"$work/a.log" 2>&1 & a=$!
  "$script" "$work/b.qvs" >"$work/b.log" 2>&1 & b=$!
  ok=1
  wait $a || ok=0
  wait $b || ok=0
  if "$script" /dev/stdin >"$work/check.log" 2>&1 <<QVS
home $home
expect row "SELECT tskDesc FROM TASKS WHERE tskGUIDID='$key'" "Description of A, round $round"
expect row "SELECT tskNotes FROM TASKS WHERE tskGUIDID='$key'" "Notes of B, round $round"
QVS
  then [ $ok = 1 ] && kept=$((kept + 1))
  else cat "$work/check.log" "$work/a.log" "$work/b.log" >&2
  fi
done
echo "$kept of $rounds rounds kept both edits"
[ "$kept" -eq "$rounds" ]
