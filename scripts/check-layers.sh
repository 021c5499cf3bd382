#!/usr/bin/env bash
# Fails when a file includes from a layer it may not use, or when subfolders of
# platform/ include each other in a loop.
#   platform: itself only           host: platform
#   core: platform                  framework: platform, core
#   prompts: platform, core, framework
#   plot: itself only
#   demo, examples, tests, bench, fuzz: anything but, inside demo/, a folder
#   above its own: common -> scene, session -> launchers -> window -> tour -> main.cpp
set -euo pipefail
cd "$(dirname "$0")/.."
allowed() {
  case $1 in
    platform) echo "platform" ;;
    host) echo "platform host" ;;
    core) echo "platform core" ;;
    framework) echo "platform core framework" ;;
    prompts) echo "platform core framework prompts" ;;
    plot) echo "plot" ;;
  esac
}
bad=0
edges=$(mktemp)
trap 'rm -f "$edges"' EXIT
while IFS= read -r line; do
  file=${line%%:*}
  layer=${file%%/*}
  path=$(sed -E 's/.*#[[:space:]]*include[[:space:]]*"([^"]+)".*/\1/' <<<"${line#*:*:}")
  target=${path%%/*}
  if [[ " $(allowed "$layer") " != *" $target "* ]]; then
    echo "layer violation: $line" >&2
    bad=1
  fi
  if [ "$layer" = platform ] && [ "$target" = platform ]; then
    from=$(cut -d/ -f2 <<<"$file"); to=$(cut -d/ -f2 <<<"$path")
    [ "$from" = "$to" ] || echo "$from $to" >>"$edges"
  fi
done < <(git grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"[a-z]+/' -- platform host core framework prompts plot)
# Inside demo/, a folder includes from the folders below it and itself.
demo_rank() {
  case $1 in
    common) echo 0 ;; scene | session) echo 1 ;; launchers) echo 2 ;; window) echo 3 ;; tour) echo 4 ;;
    *) echo 5 ;;
  esac
}
while IFS= read -r line; do
  file=${line%%:*}
  path=$(sed -E 's/.*#[[:space:]]*include[[:space:]]*"([^"]+)".*/\1/' <<<"${line#*:*:}")
  from=$(cut -d/ -f2 <<<"$file"); to=$(cut -d/ -f2 <<<"$path")
  if [ "$from" != "$to" ] && [ "$(demo_rank "$to")" -ge "$(demo_rank "$from")" ]; then
    echo "demo/ folder includes one at or above its own: $line" >&2
    bad=1
  fi
done < <(git grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"demo/' -- demo)
# tsort names a loop on stderr when the include graph has one.
if ! loops=$(sort -u "$edges" | tsort 2>&1 >/dev/null) || [ -n "$loops" ]; then
  echo "platform/ subfolders include each other in a loop: $loops" >&2
  bad=1
fi
[ "$bad" -eq 0 ] && echo "layers: every include is allowed, and platform/ has no include loop"
exit "$bad"
