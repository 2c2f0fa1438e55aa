#!/usr/bin/env bash
# A throw-away PostgreSQL server for the tests: a cluster in DIR, reached
# only by the Unix socket in DIR (no TCP), with the database "quorvel".
#   scripts/pg-server.sh start DIR   prints the store URI
#   scripts/pg-server.sh stop DIR    stops the server and removes DIR
# The server refuses to run as root: then it runs as the user postgres.
set -euo pipefail
cmd=${1:?start or stop}; dir=${2:?a folder}
bin=$(ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -1 || true)
if [ -z "$bin" ] || [ ! -x "$bin/initdb" ]; then
  echo "pg-server: no PostgreSQL server installed (scripts/setup-deps.sh installs it)" >&2; exit 1
fi
as_server() {
  if [ "$(id -u)" -eq 0 ]; then runuser -u postgres -- "$@"; else "$@"; fi
}
case "$cmd" in
  start)
    if [ -S "$dir/.s.PGSQL.5432" ] && as_server "$bin/pg_ctl" -D "$dir/data" status >/dev/null 2>&1; then
      echo "postgresql:///quorvel?host=$dir&user=postgres"; exit 0
    fi
    rm -rf "$dir"; mkdir -p "$dir"; chmod 700 "$dir"
    [ "$(id -u)" -eq 0 ] && chown postgres: "$dir"
    timeout 60 bash -c "$(declare -f as_server); as_server '$bin/initdb' -D '$dir/data' -A trust -U postgres \
      -E UTF8 --locale=C --no-sync" >"$dir/initdb.log" 2>&1 \
      || { echo "pg-server: initdb failed, see $dir/initdb.log" >&2; tail -5 "$dir/initdb.log" >&2; exit 1; }
    as_server "$bin/pg_ctl" -D "$dir/data" -l "$dir/server.log" -w -t 30 \
      -o "-k $dir -c listen_addresses= -c fsync=off -c synchronous_commit=off -c full_page_writes=off" start >/dev/null \
      || { echo "pg-server: the server did not start, see $dir/server.log" >&2; tail -5 "$dir/server.log" >&2; exit 1; }
    timeout 30 "$bin/psql" -qAtX -h "$dir" -U postgres -d postgres -c "CREATE DATABASE quorvel" >/dev/null
    timeout 30 "$bin/psql" -qAtX -h "$dir" -U postgres -d quorvel -c "CREATE EXTENSION citext" >/dev/null
    echo "postgresql:///quorvel?host=$dir&user=postgres"
    ;;
  stop)
    if [ -d "$dir/data" ]; then as_server "$bin/pg_ctl" -D "$dir/data" -m immediate -w -t 30 stop >/dev/null 2>&1 || true; fi
    rm -rf "$dir"
    ;;
  *) echo "pg-server: start or stop" >&2; exit 2 ;;
esac
