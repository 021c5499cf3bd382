#!/usr/bin/env bash
# What including a public dialog header costs a host's source file: the processor time
# the compiler takes to parse it (g++ -fsyntax-only) against a file that includes only
# <QDialog>, and the Boost headers it pulls in. Fails when a header takes more than
# LIMIT times as long as <QDialog>, or reads Boost.Signals2 (the library's own
# business: no dialog's API needs it).
# Usage: scripts/header-cost.sh [BUILD_DIR (build/qt6)] [LIMIT (1.5)]
# Each time is the best of RUNS (5) runs, taken in turn with <QDialog>'s, so that
# other work on the machine weighs on both alike.
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build/qt6}"
limit="${2:-1.5}"
runs="${RUNS:-5}"
[ -d "$build/exports" ] || { echo "header-cost: build $build first (its export headers are needed)" >&2; exit 2; }
major=$(sed -n 's/^ORRERY_QT_MAJOR:[A-Z]*=//p' "$build/CMakeCache.txt")
read -r -a flags <<<"-std=c++17 -fPIC -x c++ -I. -I$build/exports $(pkg-config --cflags "Qt${major}Widgets")"
baseline="#include <QDialog>"

# parse_ms <include line>: the processor time (user and system) of one parse of a file
# holding that line, in ms; unlike the time on the clock, other work on the machine
# hardly changes it.
parse_ms() {
  local TIMEFORMAT='%3U %3S' times
  times=$({ time g++ "${flags[@]}" -fsyntax-only - <<<"$1"; } 2>&1)
  awk '{ printf "%d", ($1 + $2) * 1000 }' <<<"$times"
}

# boost_headers <include line>: the distinct Boost headers it reads.
boost_headers() {
  g++ "${flags[@]}" -M - <<<"$1" | tr ' \\' '\n\n' | grep '/boost/' | sort -u || true
}

printf '%-48s %8s %8s %6s %6s\n' header ms QDialog ratio boost
bad=0
for header in prompts/prompt/*Dialog.h; do
  line="#include \"$header\""
  best="" base=""
  for ((i = 0; i < runs; i++)); do
    ms=$(parse_ms "$line")
    if [ -z "$best" ] || [ "$ms" -lt "$best" ]; then best=$ms; fi
    ms=$(parse_ms "$baseline")
    if [ -z "$base" ] || [ "$ms" -lt "$base" ]; then base=$ms; fi
  done
  ratio=$(awk -v a="$best" -v b="$base" 'BEGIN { printf "%.2f", a / b }')
  boost=$(boost_headers "$line")
  printf '%-48s %8s %8s %6s %6s\n' "$header" "$best" "$base" "$ratio" "$(grep -c . <<<"$boost" || true)"
  if awk -v r="$ratio" -v l="$limit" 'BEGIN { exit !(r > l) }'; then
    echo "header-cost: $header takes more than $limit times as long as <QDialog>" >&2
    bad=1
  fi
  if grep -q '/boost/signals2' <<<"$boost"; then
    echo "header-cost: $header reads Boost.Signals2" >&2
    bad=1
  fi
done
[ "$bad" -eq 0 ] || exit 1
echo "header-cost: every dialog header costs at most $limit times <QDialog> and reads no Boost.Signals2"
