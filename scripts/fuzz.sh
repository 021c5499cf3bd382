#!/usr/bin/env bash
# Builds the libFuzzer targets with clang (build/fuzz) and runs each one for
# SECONDS (default 30), starting from the committed seed corpus in fuzz/corpus/<Name>.
# Inputs found on the way go to build/fuzz/corpus/<Name>; a crash is saved in
# build/fuzz/artifacts/ and fails the run.
# Usage: scripts/fuzz.sh [SECONDS] [Name...]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-30}"; shift || true
bash scripts/install-deps.sh 6 fuzz
dir="build/fuzz"
source scripts/compiler-cache.sh
CXX=clang++ CC=clang cmake -S . -B "$dir" -DORRERY_QT_MAJOR=6 -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DORRERY_BUILD_FUZZ=ON -DORRERY_BUILD_TESTS=OFF -DORRERY_BUILD_BENCH=OFF "${launcher[@]}" >/dev/null
cmake --build "$dir" -j "${ORRERY_JOBS:-2}" --target orrery_fuzz

targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  for f in fuzz/*Fuzz.cpp; do targets+=("$(basename "$f" .cpp)"); done
fi
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan-suppressions.txt:print_suppressions=0"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
failed=()
for t in "${targets[@]}"; do
  corpus="$dir/corpus/$t"; artifacts="$dir/artifacts/$t/"
  mkdir -p "$corpus" "$artifacts" "fuzz/corpus/$t"
  echo "fuzz: $t for ${seconds}s"
  if ! QT_QPA_PLATFORM=offscreen "$dir/fuzz/$t" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -max_len=65536 -print_final_stats=1 -artifact_prefix="$artifacts" \
        "$corpus" "fuzz/corpus/$t" >"$dir/$t.log" 2>&1; then
    tail -n 40 "$dir/$t.log" >&2
    failed+=("$t")
  else
    grep -E "^stat::number_of_executed_units|^Done" "$dir/$t.log" | sed "s/^/  /" || true
  fi
done
if [ ${#failed[@]} -gt 0 ]; then
  echo "fuzz: failed: ${failed[*]} (inputs in $dir/artifacts/)" >&2
  exit 1
fi
echo "fuzz: ${#targets[@]} targets ran ${seconds}s each without a finding"
