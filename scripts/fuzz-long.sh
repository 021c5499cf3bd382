#!/usr/bin/env bash
# A longer check before a release: every fuzz target for MINUTES minutes
# (default 10), then the corpus each reached merged into fuzz/corpus/<Name>,
# keeping only inputs that add coverage, so that CI's short runs start from it.
# Usage: scripts/fuzz-long.sh [MINUTES] [Name...]
set -euo pipefail
cd "$(dirname "$0")/.."
minutes="${1:-10}"; shift || true
bash scripts/fuzz.sh "$((minutes * 60))" "$@"
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  for f in fuzz/*Fuzz.cpp; do targets+=("$(basename "$f" .cpp)"); done
fi
for t in "${targets[@]}"; do
  merged=$(mktemp -d)
  QT_QPA_PLATFORM=offscreen "build/fuzz/fuzz/$t" -merge=1 -max_len=65536 -timeout=10 -rss_limit_mb=2048 \
    "$merged" "fuzz/corpus/$t" "build/fuzz/corpus/$t" >"build/fuzz/$t.merge.log" 2>&1
  rm -rf "fuzz/corpus/$t" && mv "$merged" "fuzz/corpus/$t"
  echo "fuzz: $t corpus merged to $(ls "fuzz/corpus/$t" | wc -l) inputs"
done
