#!/usr/bin/env bash
# Configures and builds. Usage: scripts/build.sh [5|6|asan] [cmake --build arguments...]
#   5, 6: RelWithDebInfo against that Qt major version, in build/qt<N>
#   asan: Debug on Qt 6 with AddressSanitizer and UndefinedBehaviorSanitizer,
#         no benchmarks, in build/asan
set -euo pipefail
cd "$(dirname "$0")/.."
mode="${1:-6}"; shift || true
case "$mode" in
  5|6) major="$mode"; dir="build/qt$major"; options=(-DCMAKE_BUILD_TYPE=RelWithDebInfo) ;;
  asan) major=6; dir="build/asan"
        options=(-DCMAKE_BUILD_TYPE=Debug -DORRERY_SANITIZE=ON -DORRERY_BUILD_BENCH=OFF) ;;
  *) echo "usage: $0 [5|6|asan]" >&2; exit 2 ;;
esac
bash scripts/install-deps.sh "$major"
source scripts/compiler-cache.sh
cmake -S . -B "$dir" -DORRERY_QT_MAJOR="$major" "${options[@]}" "${launcher[@]}" >/dev/null
cmake --build "$dir" -j "${ORRERY_JOBS:-2}" "$@"
