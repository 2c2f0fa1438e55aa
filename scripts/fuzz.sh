#!/usr/bin/env bash
# Builds the libFuzzer targets with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer (into build/fuzz) and runs each one for
# SECONDS (default 30) on a copy of its corpus from fuzz/corpus/.
# Findings are written to build/fuzz/findings/ and fail the run.
# Usage: scripts/fuzz.sh [SECONDS] [TARGET...]     (hours: scripts/fuzz.sh 3600)
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-30}; shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(fuzz_duration fuzz_datetime fuzz_settings fuzz_script fuzz_printsettings fuzz_draft)

cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DQV_FUZZ=ON -DQV_SANITIZE=ON -DQV_BUILD_QT=OFF -DQV_BUILD_BENCH=OFF >/dev/null
ninja -C build/fuzz "${targets[@]}"

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
mkdir -p build/fuzz/findings
status=0
for t in "${targets[@]}"; do
  corpus="build/fuzz/corpus/${t#fuzz_}"
  mkdir -p "$corpus"
  cp -n fuzz/corpus/"${t#fuzz_}"/* "$corpus"/ 2>/dev/null || true
  echo "=== $t: ${seconds} s"
  if ! build/fuzz/fuzz/"$t" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
       -artifact_prefix=build/fuzz/findings/"$t"- "$corpus" 2>build/fuzz/"$t".log; then
    status=1
    echo "$t: a finding; see build/fuzz/$t.log and build/fuzz/findings/"
    tail -n 40 build/fuzz/"$t".log
  fi
  grep -E "^stat::number_of_executed_units|^Done" build/fuzz/"$t".log || true
done
exit $status
