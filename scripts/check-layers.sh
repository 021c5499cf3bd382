#!/usr/bin/env bash
# Fails when a file includes from a layer above its own:
# platform < core < framework < prompts < demo, examples (tests, bench and fuzz may include anything).
set -euo pipefail
cd "$(dirname "$0")/.."
rank() { case $1 in platform) echo 1;; core) echo 2;; framework) echo 3;; prompts) echo 4;; demo|examples) echo 5;; *) echo 0;; esac; }
bad=0
while IFS= read -r line; do
  file=${line%%:*}
  layer=${file%%/*}
  target=$(sed -E 's/.*#include[[:space:]]*"([^/"]+)\/.*/\1/' <<<"${line#*:*:}")
  if [ "$(rank "$target")" -gt "$(rank "$layer")" ]; then
    echo "layer violation: $line" >&2
    bad=1
  fi
done < <(git grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"[a-z]+/' -- platform core framework prompts demo examples)
[ "$bad" -eq 0 ] && echo "layers: every include points to its own layer or below"
exit "$bad"
