#!/usr/bin/env bash
# The store benchmarks on a throw-away PostgreSQL server over a Unix socket,
# beside the same opens on the SQLite file, in one run.
# Usage: scripts/bench-server.sh [build dir, default build/release] [benchmark options...]
# e.g. --benchmark_repetitions=5 on a busy machine.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
shift || true
dir=/tmp/qv-pg-bench-$$
trap 'scripts/pg-server.sh stop "$dir"' EXIT
export QV_STORE_URI=$(scripts/pg-server.sh start "$dir")
"$build/bench/qv_bench" --benchmark_filter='NewTaskOpen|ExistingTaskOpen|AppointmentOpen|Walk_' "$@"
